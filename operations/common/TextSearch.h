#pragma once

#include "operations/common/FoldedText.h"
#include "operations/common/SkipSearch.h"

#include <QString>
#include <QVarLengthArray>

#include <optional>

/// How texts are compared when letter case counts, and when it does not.
constexpr Qt::CaseSensitivity caseSensitivity(bool ignoreCase)
{
    return ignoreCase ? Qt::CaseInsensitive : Qt::CaseSensitive;
}

/// The position that `text.indexOf(searched, from, sensitivity)` gives, -1 without one, in time
/// linear in the two texts. `from` is not negative.
int indexOfText(const QString &text, const QString &searched, int from,
                Qt::CaseSensitivity sensitivity);

/// Finds the occurrences of a text in another, one after the other: those that `QStringMatcher`
/// finds, in time linear in the two texts whatever they hold.
///
/// Qt's search for a single unit uses the processor's vector instructions, so the search goes from
/// one occurrence of the rarest unit to the next and compares there. Where that unit is too
/// frequent for this it goes on with a search that looks at more than one.
class TextSearch
{
public:
    TextSearch(const QString &text, const QString &searched, Qt::CaseSensitivity sensitivity);

    /// The first occurrence at or after `from`, -1 without one. `from` is not negative and never
    /// less than in the call before. An empty text is found at `from` up to the end of the text.
    int next(int from);

private:
    /// A unit to look out for, and where it was last seen.
    struct Lookout
    {
        ushort unit;
        int position;
    };

    int rarestUnit() const;
    FoldedText::Variants variantsAt(int index) const;
    int nextAnchor(int from);
    int matchedUnits(int position) const;
    void charge(int position, int comparedUnits);
    int nextAmongMany(int from);

    QString m_text;
    QString m_searched;
    bool m_foldCase;
    int m_anchor = 0; ///< the index in the searched text of the unit to look out for
    QVarLengthArray<Lookout, 8> m_lookouts;
    qint64 m_wasted = 0; ///< units compared for nothing
    bool m_anchorIsFrequent = false;
    std::optional<SkipSearch<QStringView>> m_exactSearch;
    std::optional<SkipSearch<FoldedText>> m_foldedSearch;
};
