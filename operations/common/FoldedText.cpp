#include "operations/common/FoldedText.h"

#include <algorithm>
#include <vector>

namespace {

/// A unit that is not what it folds to.
struct Folding
{
    ushort folded;
    ushort unit;
};

/// How Qt folds each unit. Asked for once: a look-up then takes the place of a call for every unit,
/// and Qt has no way back from what a unit folds to.
struct FoldingTable
{
    FoldingTable();

    std::vector<ushort> folded;     ///< by unit
    std::vector<Folding> differing; ///< ordered by what they fold to
};

bool foldsLower(const Folding &left, const Folding &right)
{
    return left.folded < right.folded;
}

FoldingTable::FoldingTable()
    : folded(0x10000)
{
    for (uint unit = 0; unit < folded.size(); ++unit) {
        folded[unit] = static_cast<ushort>(QChar::toCaseFolded(unit));
        if (folded[unit] != unit)
            differing.push_back({folded[unit], static_cast<ushort>(unit)});
    }
    std::sort(differing.begin(), differing.end(), foldsLower);
}

const FoldingTable &foldingTable()
{
    static const FoldingTable table;
    return table;
}

} // namespace

FoldedText::FoldedText(QStringView text)
    : m_text(text)
    , m_folding(foldingTable().folded.data())
{
}

FoldedText::Variants FoldedText::variantsOf(QChar unit)
{
    const FoldingTable &table = foldingTable();
    const ushort folded = table.folded[unit.unicode()];
    Variants variants{folded};
    const auto others = std::equal_range(table.differing.cbegin(), table.differing.cend(),
                                         Folding{folded, folded}, foldsLower);
    std::for_each(others.first, others.second,
                  [&](const Folding &other) { variants.append(other.unit); });
    return variants;
}

uint FoldedText::foldedPair(QChar high, QChar low)
{
    return QChar::toCaseFolded(QChar::surrogateToUcs4(high, low));
}
