#pragma once

#include "operations/common/FoldedText.h"
#include "operations/common/SkipSearch.h"

#include <QString>
#include <QStringMatcher>

#include <array>
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
/// finds, in time linear in the two texts if the caller goes on behind each of them.
///
/// Looks for two units of the searched text, the rarest ones, at many places at once, and compares
/// where both stand. Where they stand together too often for this, it goes on with a search that
/// skips.
class TextSearch
{
public:
    TextSearch(const QString &text, const QString &searched, Qt::CaseSensitivity sensitivity);

    /// The first occurrence at or after `from`, -1 without one. `from` is not negative and never
    /// less than in the call before. An empty text is found at `from` up to the end of the text.
    int next(int from);

private:
    static constexpr int mostForms = 4;

    /// A unit of the searched text that is looked for, in all of its forms.
    struct Feature
    {
        int index = 0;
        std::array<ushort, mostForms> forms{}; ///< filled up with the first
    };

    void chooseFeatures();
    Feature featureAt(int index) const;
    FoldedText::Variants variantsAt(int index) const;

    int nextPlace(int from, int last);
    template <int forms>
    void findBlock(int last);

    int matchedUnits(int position) const;
    void charge(int position, int comparedUnits);
    int nextBySkipping(int from);

    QString m_text;
    QString m_searched;
    bool m_foldCase;
    Feature m_first;
    Feature m_second;
    int m_forms = 1;      ///< the most forms that one of the two has
    int m_block = 0;      ///< where the block of up to 64 places begins that is looked at
    int m_blockEnd = 0;   ///< where it ends
    quint64 m_places = 0; ///< a bit for each of its places: whether both features stand there
    qint64 m_wasted = 0;  ///< the effort spent on comparing for nothing, in units looked at
    bool m_skips = false; ///< whether the search that skips has taken over
    std::optional<QStringMatcher> m_matcher; ///< set where Qt's search is the only one like it
    std::optional<SkipSearch<QStringView>> m_exactSearch;
    std::optional<SkipSearch<FoldedText>> m_foldedSearch;
};
