#include "refhost/workbench/editor/PlainEditor.h"

#include "refhost/engine/OperandText.h"
#include "refhost/workbench/editor/ExactTextEdit.h"
#include "refhost/workbench/editor/OperandEditor.h"
#include "refhost/workbench/values/NumberText.h"

namespace {

constexpr int beginningUnits = 1000;

QString textOf(const QVariant &value)
{
    if (value.userType() == QMetaType::Double)
        return numberText(value.toDouble());
    if (value.userType() == QMetaType::QString)
        return value.toString();
    const QString text = textOfValue(value);
    return text.isEmpty() && value.isValid() && !value.canConvert<QString>()
               ? QStringLiteral("(%1)").arg(QLatin1String(value.typeName()))
               : text;
}

} // namespace

PlainEditor::PlainEditor(const PropertySchema &schema, const TaskDocument &document, bool writable,
                         QWidget *parent)
    : PropertyEditor(schema, document, parent)
    , m_field(new ExactTextEdit(this))
    , m_writable(writable && (isType("QString") || isType("int") || isType("double")))
{
    m_field->setLocked(!m_writable);
    m_field->setLineFeedsAllowed(isType("QString"));
    m_field->setMostUnits(OperandEditor::mostUnits);
    setField(m_field);
    connect(m_field, &ExactTextEdit::textEdited, this, &PlainEditor::sendText);
    connect(m_field, &ExactTextEdit::oversized, this, [this](const QString &text) {
        if (isType("QString"))
            Q_EMIT chosen(text);
    });
    connect(m_field, &ExactTextEdit::entered, this, [this] { focusNextChild(); });
}

void PlainEditor::showValue(const QVariant &value)
{
    m_isRejected = false;
    const QString text = textOf(value);
    const bool oversized = text.size() > OperandEditor::mostUnits;
    m_field->setLocked(!m_writable || oversized);
    // "1." and "1.0" are 1 too; what is being typed stays.
    if (valueOf(m_field->text()) != value || isType("QString"))
        m_field->setText(oversized ? text.left(beginningUnits) : text);
}

Remark PlainEditor::remarkNow()
{
    if (!m_writable) {
        return {Remark::Kind::Quiet, tr("类型为 %1，不能在这里编辑").arg(schema().typeName)};
    }
    const QString text = value().toString();
    if (text.size() > OperandEditor::mostUnits) {
        return {Remark::Kind::Note,
                tr("这段文本有 %1 个单元，这里只显示开头，不能直接编辑。")
                    .arg(groupedNumber(text.size())),
                tr("清空"), [this] { Q_EMIT chosen(QString()); }};
    }
    if (!m_isRejected)
        return {};
    return {Remark::Kind::Error,
            isType("int") ? tr("这不是 32 位整数，值没有改变") : tr("这不是数字，值没有改变")};
}

void PlainEditor::leave()
{
    m_isRejected = false;
    if (m_writable && !isType("QString"))
        m_field->setText(textOf(value()));
    refresh();
}

void PlainEditor::sendText()
{
    const QString text = m_field->text();
    const QVariant made = valueOf(text);
    m_isRejected = !made.isValid();
    if (made.isValid() && made != value())
        Q_EMIT typed(made);
    refresh();
}

bool PlainEditor::isType(const char *name) const
{
    return schema().typeName == QLatin1String(name);
}

QVariant PlainEditor::valueOf(const QString &text) const
{
    if (isType("QString"))
        return text;
    bool fits = false;
    const QVariant made =
        isType("int") ? QVariant(text.toInt(&fits)) : QVariant(text.toDouble(&fits));
    return fits ? made : QVariant();
}
