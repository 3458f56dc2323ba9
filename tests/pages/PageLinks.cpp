#include "tests/pages/PageLinks.h"

#include <QRegularExpression>

namespace {

/// A page without its fenced blocks.
QString proseOf(QString text)
{
    static const QRegularExpression fenced("^ *```.*?^ *```$",
                                           QRegularExpression::MultilineOption |
                                               QRegularExpression::DotMatchesEverythingOption);
    return text.remove(fenced);
}

} // namespace

QStringList linksIn(const QString &text)
{
    static const QRegularExpression link("\\[[^\\]]+\\]\\(([^)\\s]+)\\)");
    QStringList links;
    auto match = link.globalMatch(proseOf(text));
    while (match.hasNext()) {
        const QString target = match.next().captured(1);
        if (!target.contains("://"))
            links.append(target);
    }
    return links;
}

QStringList headingsIn(const QString &text)
{
    static const QRegularExpression heading("^#+ (.*)$", QRegularExpression::MultilineOption);
    static const QRegularExpression punctuation("[^\\w -]",
                                                QRegularExpression::UseUnicodePropertiesOption);
    QStringList headings;
    auto match = heading.globalMatch(proseOf(text));
    while (match.hasNext())
        headings.append(match.next().captured(1).toLower().remove(punctuation).replace(' ', '-'));
    return headings;
}
