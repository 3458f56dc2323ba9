#include "refhost/workbench/variables/SearchBar.h"

#include "refhost/workbench/look/SymbolIcon.h"
#include "refhost/workbench/variables/WholeTextEdit.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

namespace {

constexpr int slice = 1 << 19;
constexpr int columns = 24;

} // namespace

SearchBar::SearchBar(WholeTextEdit &edit, QWidget *parent)
    : QWidget(parent)
    , m_edit(edit)
    , m_sought(new QLineEdit(this))
    , m_message(new QLabel(this))
{
    m_sought->setObjectName(QStringLiteral("viewer.search"));
    m_sought->setPlaceholderText(tr("查找"));
    m_sought->setAccessibleName(tr("查找"));
    m_sought->setClearButtonEnabled(true);
    m_sought->setMinimumWidth(fontMetrics().averageCharWidth() * columns);
    m_message->setObjectName(QStringLiteral("viewer.searchMessage"));
    auto *const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_sought, 1);
    connect(
        addButton(QStringLiteral("viewer.previous"), QStringLiteral("up"), tr("上一处 (Shift+F3)")),
        &QToolButton::clicked, this, &SearchBar::findPrevious);
    connect(addButton(QStringLiteral("viewer.next"), QStringLiteral("down"), tr("下一处 (F3)")),
            &QToolButton::clicked, this, &SearchBar::findNext);
    layout->addWidget(m_message);
    connect(m_sought, &QLineEdit::returnPressed, this, &SearchBar::findNext);
    m_timer.setInterval(0);
    connect(&m_timer, &QTimer::timeout, this, &SearchBar::advance);
    // What was found so far says nothing of another text.
    connect(&edit, &WholeTextEdit::textChanged, &m_timer, &QTimer::stop);
    connect(m_sought, &QLineEdit::textChanged, &m_timer, &QTimer::stop);
    connect(m_sought, &QLineEdit::textChanged, m_message, &QLabel::clear);
}

void SearchBar::findNext()
{
    find(SlicedSearch::Direction::Forward);
}

void SearchBar::findPrevious()
{
    find(SlicedSearch::Direction::Backward);
}

void SearchBar::begin()
{
    m_sought->setFocus(Qt::ShortcutFocusReason);
    m_sought->selectAll();
}

QToolButton *SearchBar::addButton(const QString &name, const QString &symbol,
                                  const QString &toolTip)
{
    auto *const button = new QToolButton(this);
    button->setObjectName(name);
    button->setIcon(symbolIcon(symbol));
    button->setToolTip(toolTip);
    button->setAccessibleName(toolTip);
    button->setAutoRaise(true);
    layout()->addWidget(button);
    return button;
}

void SearchBar::find(SlicedSearch::Direction direction)
{
    if (m_sought->text().isEmpty()) {
        begin();
        return;
    }
    const int selected = m_edit.selectedText().size();
    const bool isForward = direction == SlicedSearch::Direction::Forward;
    // The next match may overlap the one that is selected, but is another.
    const int from = isForward ? m_edit.cursor() - (selected > 0 ? selected - 1 : 0)
                               : m_edit.cursor() - (selected > 0 ? 1 : 0);
    m_search =
        std::make_unique<SlicedSearch>(m_edit.text(), m_sought->text(), qMax(0, from), direction);
    tell(tr("正在查找…"));
    m_timer.start();
    advance();
}

void SearchBar::advance()
{
    const SlicedSearch::State state = m_search->advance(slice);
    if (state == SlicedSearch::State::Searching)
        return;
    m_timer.stop();
    if (state == SlicedSearch::State::NotFound) {
        tell(tr("没有找到"));
        return;
    }
    tell(m_search->hasWrapped() ? tr("已从另一端继续查找") : QString());
    m_edit.select(m_search->position(), m_sought->text().size());
}

void SearchBar::tell(const QString &message)
{
    m_message->setText(message);
}
