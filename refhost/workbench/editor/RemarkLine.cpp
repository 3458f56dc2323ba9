#include "refhost/workbench/editor/RemarkLine.h"

#include "refhost/workbench/look/Shades.h"
#include "refhost/workbench/look/SymbolPixmap.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

namespace {

QString iconName(Remark::Kind kind)
{
    switch (kind) {
    case Remark::Kind::Error:
        return QStringLiteral("error");
    case Remark::Kind::Warning:
        return QStringLiteral("warning");
    case Remark::Kind::Note:
        return QStringLiteral("note");
    case Remark::Kind::Quiet:
    case Remark::Kind::None:
        break;
    }
    return {};
}

QColor colorOf(Remark::Kind kind, const Shades &shades)
{
    switch (kind) {
    case Remark::Kind::Error:
        return shades.error;
    case Remark::Kind::Warning:
        return shades.warning;
    case Remark::Kind::Note:
        return shades.note;
    case Remark::Kind::Quiet:
    case Remark::Kind::None:
        break;
    }
    return shades.quiet;
}

} // namespace

RemarkLine::RemarkLine(QWidget *parent)
    : QWidget(parent)
    , m_icon(new QLabel(this))
    , m_text(new QLabel(this))
    , m_button(new QPushButton(this))
{
    m_text->setWordWrap(true);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setMinimumWidth(1);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_text->setObjectName(QStringLiteral("text"));
    m_button->setObjectName(QStringLiteral("fix"));
    connect(m_button, &QPushButton::clicked, this, [this] {
        // The remark may be another one before the mending is done.
        const std::function<void()> fix = m_remark.fix;
        if (fix)
            fix();
    });
    auto *const column = new QVBoxLayout;
    column->addWidget(m_text);
    column->addWidget(m_button, 0, Qt::AlignLeft);
    auto *const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(style()->pixelMetric(QStyle::PM_LayoutHorizontalSpacing) / 2);
    row->addWidget(m_icon, 0, Qt::AlignTop);
    row->addLayout(column, 1);
    hide();
}

void RemarkLine::setRemark(const Remark &remark)
{
    const bool same = remark.kind == m_remark.kind && remark.text == m_remark.text &&
                      remark.fixText == m_remark.fixText;
    m_remark = remark;
    if (same)
        return;
    m_text->setText(remark.text);
    m_button->setText(remark.fixText);
    m_button->setVisible(!remark.fixText.isEmpty());
    showColors();
    setVisible(remark.kind != Remark::Kind::None);
}

void RemarkLine::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange)
        showColors();
}

void RemarkLine::showColors()
{
    const QColor color = colorOf(m_remark.kind, Shades::of(palette()));
    QPalette textPalette = m_text->palette();
    if (textPalette.color(QPalette::WindowText) != color) {
        textPalette.setColor(QPalette::WindowText, color);
        m_text->setPalette(textPalette);
    }
    const QString name = iconName(m_remark.kind);
    const int size = m_text->fontMetrics().height();
    m_icon->setVisible(!name.isEmpty());
    if (!name.isEmpty())
        m_icon->setPixmap(symbolPixmap(name, color, size, devicePixelRatioF()));
}
