#include "refhost/workbench/editor/StepHeader.h"

#include "refhost/workbench/editor/ExactTextEdit.h"
#include "refhost/workbench/look/OperationIcon.h"
#include "refhost/workbench/look/Shades.h"

#include "Operation.h"

#include <QElapsedTimer>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>

namespace {

constexpr int slowMilliseconds = 50;
constexpr int delayMilliseconds = 300;
constexpr int mostUnits = 240;
constexpr int mostLineFeeds = 3;

/// The beginning of a text that may be huge, or of many lines.
QString beginning(const QString &text)
{
    int end = -1;
    for (int i = 0; i <= mostLineFeeds; ++i) {
        end = text.indexOf(QLatin1Char('\n'), end + 1);
        if (end < 0)
            break;
    }
    const int size = qMin(end < 0 ? text.size() : end, mostUnits);
    return size < text.size() ? text.left(size) + QStringLiteral("…") : text;
}

void showText(ExactTextEdit &edit, const QString &text)
{
    edit.setText(beginning(text));
    edit.setVisible(!text.isEmpty());
}

} // namespace

StepHeader::StepHeader(QWidget *parent)
    : QWidget(parent)
    , m_icon(new QLabel(this))
    , m_name(new QLabel(this))
    , m_type(new QLabel(this))
    , m_description(new ExactTextEdit(this))
    , m_summary(new ExactTextEdit(this))
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(delayMilliseconds);
    connect(&m_timer, &QTimer::timeout, this, &StepHeader::showTexts);
    m_icon->setObjectName(QStringLiteral("editor.header.icon"));
    m_name->setObjectName(QStringLiteral("editor.header.name"));
    m_type->setObjectName(QStringLiteral("editor.header.type"));
    m_description->setObjectName(QStringLiteral("editor.header.description"));
    m_summary->setObjectName(QStringLiteral("editor.header.summary"));
    m_description->setAccessibleName(tr("说明"));
    m_summary->setAccessibleName(tr("摘要"));
    for (QLabel *const label : {m_name, m_type}) {
        label->setTextFormat(Qt::PlainText);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        label->setMinimumWidth(1);
    }
    for (ExactTextEdit *const edit : {m_description, m_summary}) {
        edit->setLabelLike();
    }
    QFont nameFont = m_name->font();
    nameFont.setBold(true);
    nameFont.setPointSizeF(nameFont.pointSizeF() * 1.25);
    m_name->setFont(nameFont);
    arrange();
    showColors();
}

void StepHeader::showStep(const std::shared_ptr<const Operation> &step)
{
    const int size = m_name->fontMetrics().height() * 2;
    m_icon->setPixmap(operationIcon(*step).pixmap(window()->windowHandle(), QSize(size, size)));
    m_name->setText(step->typeName());
    m_type->setText(step->typeId());
    m_step = step;
    if (m_isSlow)
        m_timer.start();
    else
        showTexts();
}

void StepHeader::showTexts()
{
    QElapsedTimer timer;
    timer.start();
    showText(*m_description, m_step->description());
    showText(*m_summary, m_step->toString());
    if (m_summary->text() == m_step->typeName())
        m_summary->hide();
    m_isSlow = timer.elapsed() > slowMilliseconds;
    m_step.reset();
}

void StepHeader::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        showColors();
}

void StepHeader::arrange()
{
    auto *const grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(fontMetrics().height() / 2);
    grid->setVerticalSpacing(fontMetrics().height() / 4);
    grid->addWidget(m_icon, 0, 0, 2, 1, Qt::AlignTop);
    grid->addWidget(m_name, 0, 1);
    grid->addWidget(m_type, 1, 1);
    grid->addWidget(m_description, 2, 0, 1, 2);
    grid->addWidget(m_summary, 3, 0, 1, 2);
    grid->setColumnStretch(1, 1);
}

void StepHeader::showColors()
{
    const QColor quiet = Shades::of(palette()).quiet;
    QPalette colors = m_type->palette();
    if (colors.color(QPalette::WindowText) == quiet)
        return;
    colors.setColor(QPalette::WindowText, quiet);
    m_type->setPalette(colors);
    QPalette textColors;
    textColors.setColor(QPalette::Text, quiet);
    m_summary->setPalette(textColors);
}
