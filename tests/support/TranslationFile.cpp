#include "tests/support/TranslationFile.h"

#include <QFile>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <algorithm>

namespace {

/// The one text of a translation, or those for different numbers.
QStringList readForms(QXmlStreamReader &xml, bool isNumerus)
{
    if (!isNumerus)
        return {xml.readElementText()};
    QStringList forms;
    while (xml.readNextStartElement())
        forms.append(xml.readElementText());
    return forms;
}

TranslatedText readMessage(QXmlStreamReader &xml, const QString &context)
{
    TranslatedText message{context, {}, {}, {}};
    const bool isNumerus = xml.attributes().value("numerus") == QLatin1String("yes");
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("source")) {
            message.source = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            message.state = xml.attributes().value("type").toString();
            message.forms = readForms(xml, isNumerus);
        } else {
            xml.skipCurrentElement();
        }
    }
    return message;
}

bool hasMnemonic(const QString &text)
{
    static const QRegularExpression mnemonic(R"((^|[^&])&\w(?!\w*;))");
    return mnemonic.match(text).hasMatch();
}

QString blanksAround(const QString &text)
{
    static const QRegularExpression blanks(R"(^(\s*).*?(\s*)$)",
                                           QRegularExpression::DotMatchesEverythingOption);
    const auto match = blanks.match(text);
    return match.captured(1) + '|' + match.captured(2);
}

} // namespace

QList<TranslatedText> readTranslations(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QXmlStreamReader xml(&file);
    QList<TranslatedText> messages;
    QString context;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("name"))
            context = xml.readElementText();
        else if (xml.name() == QLatin1String("message"))
            messages.append(readMessage(xml, context));
    }
    return xml.hasError() ? QList<TranslatedText>() : messages;
}

bool hasChinese(const QString &text)
{
    return std::any_of(text.begin(), text.end(),
                       [](QChar letter) { return letter.script() == QChar::Script_Han; });
}

bool hasLetters(const QString &text)
{
    return std::any_of(text.begin(), text.end(), [](QChar letter) { return letter.isLetter(); });
}

QStringList markersOf(const QString &text)
{
    static const QRegularExpression marker(R"(%L?\d+|%n|\{\w+\})");
    QStringList markers;
    auto match = marker.globalMatch(text);
    while (match.hasNext()) {
        markers.append(match.next().captured());
        markers.last().replace("{number}", "{index}").replace("{label}", "{name}");
    }
    markers.sort();
    return markers;
}

QString faultOf(const TranslatedText &message)
{
    if (!message.state.isEmpty())
        return message.state;
    for (const QString &form : message.forms) {
        if (form.isEmpty())
            return "empty";
        if (markersOf(form) != markersOf(message.source))
            return "other markers";
        // What separates words has a blank in one script and none in another.
        if (hasLetters(message.source) && blanksAround(form) != blanksAround(message.source))
            return "other blanks around it";
        if (hasMnemonic(form) != hasMnemonic(message.source))
            return "a mnemonic too many or missing";
    }
    return message.forms.isEmpty() ? "missing" : QString();
}
