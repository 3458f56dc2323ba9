#include "refhost/workbench/variables/ValuePreview.h"

#include "refhost/workbench/variables/VisibleText.h"

#include <QCoreApplication>
#include <QLocale>
#include <QVariantList>

#include <cmath>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ValuePreview)
};

constexpr int longestLine = 1000; ///< of what is edited in place
constexpr int uncounted = 40;     ///< so much text shows without its length

QString textHead(const QString &text, int units)
{
    int size = qMin(text.size(), units);
    if (size < text.size() && size > 0 && text.at(size - 1).isHighSurrogate())
        --size;
    return visibleText(QStringView(text).left(size));
}

/// Writes JSON-like text of values until it is long enough.
class Head
{
public:
    explicit Head(int units)
        : m_units(units)
    {
    }

    void append(const QVariant &value)
    {
        if (value.userType() == QMetaType::QVariantList)
            appendList(*static_cast<const QVariantList *>(value.constData()));
        else if (value.userType() == QMetaType::QString)
            m_text += QLatin1Char('"') + textHead(value.toString(), m_units) + QLatin1Char('"');
        else if (value.userType() == QMetaType::Double)
            m_text += numberText(value.toDouble());
        else
            m_text += value.toString();
    }

    QString text() const { return isFull() ? textHead(m_text, m_units) : m_text; }

private:
    bool isFull() const { return m_text.size() > m_units; }

    void appendList(const QVariantList &list)
    {
        m_text += QLatin1Char('[');
        for (int i = 0; i < list.size() && !isFull(); ++i) {
            if (i > 0)
                m_text += QLatin1String(", ");
            append(list.at(i));
        }
        if (!isFull())
            m_text += QLatin1Char(']');
    }

    QString m_text;
    int m_units;
};

QString headOf(const QVariant &value, int units)
{
    Head head(units);
    head.append(value);
    return head.text();
}

ValuePreview textPreview(const QString &text, int units)
{
    ValuePreview preview{textHead(text, units), {}, text.isEmpty()};
    if (text.isEmpty())
        preview.text = Texts::tr("（空）");
    else if (text.size() > uncounted)
        preview.detail = Texts::tr("%1 个 UTF-16 单元").arg(groupedNumber(text.size()));
    if (text.size() > units)
        preview.text += QChar(0x2026);
    return preview;
}

ValuePreview listPreview(const QVariant &value, VarType type, int units)
{
    const int size = value.toList().size();
    const QString detail = type == VarType::Table ? Texts::tr("%1 行") : Texts::tr("%1 项");
    const QString head = headOf(value.isValid() ? value : QVariantList(), units);
    return {head.size() < units ? head : head + QChar(0x2026), detail.arg(groupedNumber(size)),
            size == 0};
}

QString emptyScalar(VarType type)
{
    return type == VarType::Bool ? QStringLiteral("false") : QStringLiteral("0");
}

} // namespace

QString ValuePreview::toString() const
{
    return detail.isEmpty() ? text : Texts::tr("%1 （%2）").arg(text, detail);
}

ValuePreview previewOf(const QVariant &value, VarType type, int units)
{
    if (value.userType() == QMetaType::QString || (type == VarType::String && !value.isValid()))
        return textPreview(value.toString(), units);
    if (value.userType() == QMetaType::QVariantList || type == VarType::List ||
        type == VarType::Table)
        return listPreview(value, type, units);
    if (!value.isValid())
        return {emptyScalar(type), {}, true};
    return {headOf(value, units), {}, false};
}

QString numberText(double number)
{
    // Qt writes both zeros alike.
    if (number == 0 && std::signbit(number))
        return QStringLiteral("-0");
    return QString::number(number, 'g', QLocale::FloatingPointShortest);
}

bool needsViewer(const QVariant &value, VarType type)
{
    if (type == VarType::List || type == VarType::Table ||
        value.userType() == QMetaType::QVariantList)
        return true;
    if (value.userType() != QMetaType::QString)
        return false;
    const QString text = value.toString();
    return text.size() > longestLine || !isPlainLine(text);
}
