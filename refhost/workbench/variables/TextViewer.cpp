#include "refhost/workbench/variables/TextViewer.h"

#include "refhost/workbench/look/SymbolIcon.h"
#include "refhost/workbench/values/NumberText.h"
#include "refhost/workbench/variables/SearchBar.h"
#include "refhost/workbench/variables/TextFile.h"
#include "refhost/workbench/variables/WholeTextEdit.h"

#include <QAction>
#include <QClipboard>
#include <QFileDialog>
#include <QGuiApplication>
#include <QLabel>
#include <QSpinBox>
#include <QToolBar>
#include <QVBoxLayout>

TextViewer::TextViewer(const QString &title, const QString &text, ValueSetter setter,
                       QWidget *parent)
    : ValueDialog(title, std::move(setter), parent)
    , m_edit(new WholeTextEdit(this))
    , m_search(new SearchBar(*m_edit, this))
    , m_position(new QSpinBox(this))
    , m_where(new QLabel(this))
    , m_size(new QLabel(this))
{
    setObjectName(QStringLiteral("viewer"));
    m_edit->setObjectName(QStringLiteral("viewer.text"));
    m_edit->setAccessibleName(title);
    m_edit->setReadOnly(isReadOnly());
    content()->addWidget(createBar());
    content()->addWidget(m_edit, 1);
    content()->addLayout(createFoot());
    connect(m_edit, &WholeTextEdit::textChanged, this, &TextViewer::showState);
    connect(m_edit, &WholeTextEdit::cursorMoved, this, &TextViewer::showState);
    m_edit->setText(text);
    m_edit->setFocus();
}

QVariant TextViewer::value() const
{
    return m_edit->text();
}

bool TextViewer::isModified() const
{
    return m_edit->isModified();
}

void TextViewer::load(const QString &path)
{
    const Result<QString> text = readTextFile(path);
    tell(text ? QString() : text.problem().message);
    if (text)
        m_edit->replaceText(text.value());
}

void TextViewer::save(const QString &path)
{
    const auto problem = writeTextFile(path, m_edit->text());
    tell(problem ? problem->message : QString());
}

QToolBar *TextViewer::createBar()
{
    auto *const bar = new QToolBar(this);
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    if (!isReadOnly()) {
        connect(addAction(*bar, QStringLiteral("viewer.load"), QStringLiteral("open"),
                          tr("从文件载入…"), QKeySequence::Open),
                &QAction::triggered, this, &TextViewer::chooseFileToLoad);
        connect(addAction(*bar, QStringLiteral("viewer.pasteAll"), QStringLiteral("paste"),
                          tr("从剪贴板替换"), {}),
                &QAction::triggered, this, &TextViewer::replaceFromClipboard);
    }
    connect(addAction(*bar, QStringLiteral("viewer.save"), QStringLiteral("save-as"), tr("另存为…"),
                      QKeySequence::Save),
            &QAction::triggered, this, &TextViewer::chooseFileToSave);
    if (!isReadOnly()) {
        bar->addSeparator();
        connect(
            addAction(*bar, QStringLiteral("viewer.undo"), QStringLiteral("undo"), tr("撤销"), {}),
            &QAction::triggered, m_edit, &WholeTextEdit::undo);
        connect(
            addAction(*bar, QStringLiteral("viewer.redo"), QStringLiteral("redo"), tr("重做"), {}),
            &QAction::triggered, m_edit, &WholeTextEdit::redo);
    }
    const auto shortcut = [this](const QKeySequence &keys, auto slot) {
        auto *const action = new QAction(this);
        action->setShortcut(keys);
        connect(action, &QAction::triggered, m_search, slot);
        QWidget::addAction(action);
    };
    shortcut(QKeySequence::Find, &SearchBar::begin);
    shortcut(Qt::Key_F3, &SearchBar::findNext);
    shortcut(int(Qt::SHIFT) + Qt::Key_F3, &SearchBar::findPrevious);
    return bar;
}

QAction *TextViewer::addAction(QToolBar &bar, const QString &name, const QString &symbol,
                               const QString &text, const QKeySequence &shortcut)
{
    QAction *const action = bar.addAction(symbolIcon(symbol), text);
    action->setObjectName(name);
    action->setShortcut(shortcut);
    return action;
}

QLayout *TextViewer::createFoot()
{
    m_where->setObjectName(QStringLiteral("viewer.where"));
    m_size->setObjectName(QStringLiteral("viewer.size"));
    m_position->setObjectName(QStringLiteral("viewer.position"));
    m_position->setToolTip(tr("光标前的 UTF-16 单元数"));
    m_position->setKeyboardTracking(false);
    auto *const label = new QLabel(tr("位置(&P)"), this);
    label->setBuddy(m_position);
    connect(m_position, qOverload<int>(&QSpinBox::valueChanged), this,
            [this](int position) { m_edit->setCursor(position); });
    auto *const searching = new QHBoxLayout;
    searching->addWidget(m_search, 1);
    searching->addWidget(label);
    searching->addWidget(m_position);
    auto *const state = new QHBoxLayout;
    state->addWidget(m_where);
    state->addStretch(1);
    state->addWidget(m_size);
    auto *const foot = new QVBoxLayout;
    foot->addLayout(searching);
    foot->addLayout(state);
    return foot;
}

void TextViewer::replaceFromClipboard()
{
    m_edit->replaceText(QGuiApplication::clipboard()->text());
}

void TextViewer::chooseFileToLoad()
{
    auto *const dialog = new QFileDialog(this, tr("从文件载入"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFile);
    connect(dialog, &QFileDialog::fileSelected, this, &TextViewer::load);
    dialog->open();
}

void TextViewer::chooseFileToSave()
{
    auto *const dialog = new QFileDialog(this, tr("另存为"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    connect(dialog, &QFileDialog::fileSelected, this, &TextViewer::save);
    dialog->open();
}

void TextViewer::showState()
{
    const QSignalBlocker blocker(m_position);
    m_position->setMaximum(m_edit->text().size());
    m_position->setValue(m_edit->cursor());
    m_where->setText(
        tr("第 %1 行，第 %2 个单元")
            .arg(groupedNumber(m_edit->line() + 1), groupedNumber(m_edit->column() + 1)));
    m_size->setText(
        tr("%1 个 UTF-16 单元，%2 个字符")
            .arg(groupedNumber(m_edit->text().size()), groupedNumber(m_edit->characters())));
}
