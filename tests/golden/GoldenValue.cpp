#include "tests/golden/GoldenValue.h"

#include <QJsonObject>
#include <QStringList>

namespace {

/// How long a text may be that stands in full.
constexpr int longestPlainText = 200;

/// The length of the shortest text of whose repetitions `text` consists.
int periodOf(const QString &text)
{
    int period = 1;
    while (text.size() % period != 0 || text.left(text.size() - period) != text.mid(period))
        ++period;
    return period;
}

/// Whether JSON in UTF-8 gives the text back, and a reader sees what it is.
bool isPlain(const QString &text)
{
    return QString::fromUtf8(text.toUtf8()) == text && !text.contains(QChar::Null);
}

QJsonValue unitsOf(const QString &text)
{
    QStringList units;
    for (const QChar unit : text)
        units.append(QString("%1").arg(unit.unicode(), 4, 16, QChar('0')));
    return QJsonObject{{"units", units.join(' ')}};
}

QJsonValue textToJson(const QString &text)
{
    if (text.isNull())
        return QJsonValue::Null;
    if (!isPlain(text))
        return unitsOf(text);
    if (text.size() <= longestPlainText)
        return text;
    const int period = periodOf(text);
    return QJsonObject{{"repeat", text.left(period)}, {"times", text.size() / period}};
}

QVariant textFromUnits(const QString &units)
{
    QString text;
    for (const QString &unit : units.split(' '))
        text += QChar(unit.toUShort(nullptr, 16));
    return text;
}

} // namespace

QJsonValue goldenToJson(const QVariant &value)
{
    if (value.userType() == QMetaType::QString)
        return textToJson(value.toString());
    return QJsonValue::fromVariant(value);
}

QVariant goldenFromJson(const QJsonValue &json)
{
    const QJsonObject object = json.toObject();
    switch (json.type()) {
    case QJsonValue::Null:
        return QString();
    case QJsonValue::String:
        // JSON has no null text, and Qt may give one for an empty text.
        return json.toString().isEmpty() ? QString("") : json.toString();
    case QJsonValue::Bool:
        return json.toBool();
    case QJsonValue::Double:
        return json.toInt();
    case QJsonValue::Object:
        if (object.contains("units"))
            return textFromUnits(object.value("units").toString());
        return object.value("repeat").toString().repeated(object.value("times").toInt());
    default:
        return {};
    }
}
