#pragma once

#include <QStringView>

/// How many letters have to be put in, left out, replaced or swapped with their neighbour to make
/// one text the other; anything above `most` when it takes more than that. Takes time for `most`
/// letters around each place, not for all of them.
int editDistance(QStringView left, QStringView right, int most);
