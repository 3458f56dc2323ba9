#include "refhost/engine/EditDistance.h"

#include <QVarLengthArray>

#include <algorithm>
#include <cstdlib>
#include <numeric>
#include <utility>

namespace {

/// Takes away what both begin and end with, where no edit is needed.
void leaveDifference(QStringView &left, QStringView &right)
{
    const auto begin = std::mismatch(left.begin(), left.end(), right.begin(), right.end());
    const auto same = begin.first - left.begin();
    left = left.mid(same);
    right = right.mid(same);
    while (!left.isEmpty() && !right.isEmpty() && left.back() == right.back()) {
        left.chop(1);
        right.chop(1);
    }
}

bool isSwap(QStringView left, int i, QStringView right, int j)
{
    return i > 1 && j > 1 && left.at(i - 1) == right.at(j - 2) && left.at(i - 2) == right.at(j - 1);
}

} // namespace

int editDistance(QStringView left, QStringView right, int most)
{
    leaveDifference(left, right);
    const int rows = static_cast<int>(left.size());
    const int columns = static_cast<int>(right.size());
    const int tooMany = most + 1;
    if (std::abs(rows - columns) > most)
        return tooMany;
    // Row `i` has the distances of the first `i` letters on the left from the first `j` on the
    // right. Away from the diagonal there are too many edits.
    QVarLengthArray<int, 384> cells(3 * (columns + 1));
    int *beforeLast = cells.data();
    int *last = beforeLast + columns + 1;
    int *row = last + columns + 1;
    std::iota(last, row, 0);
    for (int i = 1; i <= rows; ++i) {
        const int first = std::max(1, i - most);
        const int end = std::min(columns, i + most);
        row[first - 1] = first == 1 ? i : tooMany;
        int fewest = row[first - 1];
        for (int j = first; j <= end; ++j) {
            const bool equal = left.at(i - 1) == right.at(j - 1);
            // The last row ends one place before this one does.
            const int above = j < i + most ? last[j] : tooMany;
            int edits = std::min({above + 1, row[j - 1] + 1, last[j - 1] + (equal ? 0 : 1)});
            if (isSwap(left, i, right, j))
                edits = std::min(edits, beforeLast[j - 2] + 1);
            row[j] = edits;
            fewest = std::min(fewest, edits);
        }
        if (fewest > most)
            return tooMany;
        std::swap(beforeLast, last);
        std::swap(last, row);
    }
    return last[columns];
}
