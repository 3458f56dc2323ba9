#include "refhost/workbench/values/ValuePreview.h"

#include "refhost/workbench/values/NumberText.h"
#include "refhost/workbench/values/TextBeginning.h"
#include "refhost/workbench/values/VisibleText.h"

#include <QCoreApplication>
#include <QVariantList>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ValuePreview)
};

constexpr int uncounted = 40; ///< so much text shows without its length

bool isText(const QVariant &value)
{
    return value.userType() == QMetaType::QString;
}

bool isList(const QVariant &value)
{
    return value.userType() == QMetaType::QVariantList;
}

/// Writes JSON-like text of values until it is long enough.
class Head
{
public:
    Head(const QVariant &value, int units)
        : m_units(units)
    {
        append(value);
    }

    bool isCut() const { return m_text.size() > m_units; }
    QString text() const
    {
        return isCut() ? textBeginning(m_text, m_units) + QChar(0x2026) : m_text;
    }

private:
    void append(const QVariant &value)
    {
        if (isList(value))
            appendList(*static_cast<const QVariantList *>(value.constData()));
        else if (isText(value))
            m_text += QLatin1Char('"') + visibleText(value.toString(), m_units) + QLatin1Char('"');
        else if (value.userType() == QMetaType::Double)
            m_text += numberText(value.toDouble());
        else
            m_text += value.toString();
    }

    void appendList(const QVariantList &list)
    {
        m_text += QLatin1Char('[');
        for (int i = 0; i < list.size() && !isCut(); ++i) {
            if (i > 0)
                m_text += QLatin1String(", ");
            append(list.at(i));
        }
        if (!isCut())
            m_text += QLatin1Char(']');
    }

    QString m_text;
    int m_units;
};

QString unitsText(const QString &text)
{
    return Texts::tr("%1 个 UTF-16 单元").arg(groupedNumber(text.size()));
}

QString elementsText(const QVariant &list, VarType type)
{
    const QString counted = type == VarType::Table ? Texts::tr("%1 行") : Texts::tr("%1 项");
    return counted.arg(groupedNumber(list.toList().size()));
}

ValuePreview textPreview(const QString &text, int units)
{
    if (text.isEmpty())
        return {Texts::tr("（空）"), {}, true};
    return {visibleText(text, units), text.size() > uncounted ? unitsText(text) : QString(), false};
}

} // namespace

QString ValuePreview::toString() const
{
    return detail.isEmpty() ? text : Texts::tr("%1 （%2）").arg(text, detail);
}

ValuePreview previewOf(const QVariant &value, VarType type, int units)
{
    const QVariant shown = value.isValid() ? value : emptyValue(type);
    if (isText(shown))
        return textPreview(shown.toString(), units);
    const Head head(shown, units);
    if (isList(shown))
        return {head.text(), elementsText(shown, type), shown.toList().isEmpty()};
    return {head.text(), {}, !value.isValid()};
}

QString valueLine(const QVariant &value, int units)
{
    if (!value.isValid())
        return Texts::tr("（没有值）");
    if (isText(value)) {
        const QString text = value.toString();
        const QString quoted = QStringLiteral("\"%1\"").arg(visibleText(text, units));
        return text.size() > units ? ValuePreview{quoted, unitsText(text)}.toString() : quoted;
    }
    const Head head(value, units);
    if (!isList(value) || !head.isCut())
        return head.text();
    return ValuePreview{head.text(), elementsText(value, VarType::List)}.toString();
}

QVariant emptyValue(VarType type)
{
    switch (type) {
    case VarType::Int:
        return 0;
    case VarType::Double:
        return 0.0;
    case VarType::String:
        return QString(QLatin1String(""));
    case VarType::Bool:
        return false;
    case VarType::List:
    case VarType::Table:
        return QVariantList();
    case VarType::None:
        break;
    }
    return {};
}
