#pragma once

#include <QVector>

class QMimeData;

// Steps that are dragged within one window are known by their identifiers.

/// Notes in `mime` which steps are dragged.
void noteDraggedSteps(QMimeData &mime, const QVector<int> &steps);

/// The steps that are dragged; none when they are those of another program.
QVector<int> draggedSteps(const QMimeData &mime);
