#include "refhost/workbench/run/LogPanel.h"

#include "refhost/workbench/look/SymbolIcon.h"
#include "refhost/workbench/run/LogFilter.h"
#include "refhost/workbench/run/LogModel.h"
#include "refhost/workbench/run/LogView.h"
#include "refhost/workbench/run/RunChronicle.h"
#include "refhost/workbench/run/WarningPlace.h"
#include "refhost/workbench/window/Workbench.h"

#include "Operation.h"

#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QFileDialog>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QMessageBox>
#include <QSaveFile>
#include <QScrollBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int flushMilliseconds = 100;

} // namespace

LogPanel::LogPanel(Workbench &bench, QWidget *parent)
    : QWidget(parent)
    , m_bench(bench)
    , m_chronicle(new RunChronicle(bench.run, this))
    , m_log(new LogModel(this))
    , m_shown(new LogFilter(this))
{
    m_shown->setSourceModel(m_log);
    createView();
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(createBar());
    layout->addWidget(m_view);
    setFocusProxy(m_view);
    m_flushTimer.setSingleShot(true);
    m_flushTimer.setInterval(flushMilliseconds);
    connect(&m_flushTimer, &QTimer::timeout, this, &LogPanel::flush);
    connect(m_chronicle, &RunChronicle::written, this, &LogPanel::showLines);
    connect(&bench.document, &TaskDocument::replaced, this, &LogPanel::clear);
}

void LogPanel::createView()
{
    m_view = new LogView(*m_log, *m_shown, this);
    m_view->setObjectName(QStringLiteral("log.table"));
    m_view->setAccessibleName(tr("日志"));
    m_view->setFrameShape(QFrame::NoFrame);
    m_view->setRootIsDecorated(false);
    m_view->setUniformRowHeights(true);
    m_view->setAllColumnsShowFocus(true);
    m_view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_view->setContextMenuPolicy(Qt::ActionsContextMenu);
    const QFontMetrics metrics = m_view->fontMetrics();
    QHeaderView *const header = m_view->header();
    header->setStretchLastSection(false);
    for (const int column : {LogModel::TextColumn, LogModel::WritesColumn})
        header->setSectionResizeMode(column, QHeaderView::Stretch);
    header->resizeSection(LogModel::NumberColumn, metrics.horizontalAdvance(tr("步骤")) * 2);
    header->resizeSection(LogModel::TimeColumn,
                          metrics.horizontalAdvance(QStringLiteral("000.0 µs")) * 3 / 2);
    connect(m_view, &QTreeView::clicked, this, &LogPanel::goToLine);
    connect(m_view, &QTreeView::activated, this, &LogPanel::goToLine);
}

QWidget *LogPanel::createBar()
{
    auto *const bar = new QWidget(this);
    auto *const layout = new QHBoxLayout(bar);
    layout->setContentsMargins(style()->pixelMetric(QStyle::PM_LayoutHorizontalSpacing), 0, 0, 0);
    auto *const warnings = new QCheckBox(tr("只看警告(&W)"), bar);
    warnings->setObjectName(QStringLiteral("log.warningsOnly"));
    connect(warnings, &QCheckBox::toggled, m_shown, &LogFilter::setWarningsOnly);
    layout->addWidget(warnings);
    layout->addStretch();
    QAction *const copy = addAction("copy", tr("复制所选行"), QKeySequence::Copy, "copy");
    connect(copy, &QAction::triggered, this, &LogPanel::copySelected);
    QAction *const saving = addAction("save", tr("保存日志…"), {}, "save");
    connect(saving, &QAction::triggered, this, &LogPanel::askAndSave);
    QAction *const clearing = addAction("clear", tr("清空日志"), {}, "delete");
    connect(clearing, &QAction::triggered, this, &LogPanel::clear);
    for (QAction *const action : {copy, saving, clearing}) {
        auto *const button = new QToolButton(bar);
        button->setDefaultAction(action);
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::TabFocus);
        layout->addWidget(button);
    }
    return bar;
}

QAction *LogPanel::addAction(const char *name, const QString &text, const QKeySequence &shortcut,
                             const char *icon)
{
    auto *const action = new QAction(symbolIcon(QLatin1String(icon)), text, this);
    action->setObjectName(QLatin1String("log.") + QLatin1String(name));
    action->setShortcut(shortcut);
    action->setShortcutContext(Qt::WidgetShortcut);
    m_view->addAction(action);
    return action;
}

bool LogPanel::save(const QString &file) const
{
    QSaveFile out(file);
    if (!out.open(QIODevice::WriteOnly))
        return false;
    for (int row = 0; row < m_shown->rowCount(); ++row)
        out.write(plainText(row).toUtf8() + '\n');
    return out.commit();
}

void LogPanel::showLines(bool atOnce)
{
    if (atOnce)
        flush();
    else if (!m_flushTimer.isActive())
        m_flushTimer.start();
}

/// Follows the last line, unless the user has scrolled away from it.
void LogPanel::flush()
{
    m_flushTimer.stop();
    const QScrollBar *const bar = m_view->verticalScrollBar();
    const bool follows = bar->value() == bar->maximum();
    m_log->append(m_chronicle->takeLines());
    if (follows)
        m_view->scrollToBottom();
}

void LogPanel::clear()
{
    m_chronicle->takeLines();
    m_log->clear();
}

void LogPanel::copySelected() const
{
    QModelIndexList rows = m_view->selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end());
    QStringList lines;
    for (const QModelIndex &row : qAsConst(rows))
        lines.append(plainText(row.row()));
    if (!lines.isEmpty())
        QGuiApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
}

void LogPanel::askAndSave()
{
    auto *const dialog = new QFileDialog(this, tr("保存日志"), {}, tr("文本文件 (*.txt)"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(QStringLiteral("txt"));
    connect(dialog, &QFileDialog::fileSelected, this, [this](const QString &file) {
        if (save(file))
            return;
        auto *const box = new QMessageBox(QMessageBox::Warning, tr("保存日志"),
                                          tr("无法写入文件 %1。").arg(file), QMessageBox::Ok, this);
        box->setAttribute(Qt::WA_DeleteOnClose);
        box->open();
    });
    dialog->open();
}

void LogPanel::goToLine(const QModelIndex &index) const
{
    const LogLine &line = m_log->line(m_shown->mapToSource(index).row());
    if (m_bench.document.state().step(line.step))
        m_bench.place.goTo({line.step, propertyOf(line), 0});
}

QString LogPanel::propertyOf(const LogLine &line) const
{
    if (line.kind != LogLine::Kind::Warning || !line.operation)
        return {};
    QStringList suspects;
    const QList<Finding> findings = m_bench.check.findingsOf(line.step);
    for (const Finding &finding : findings)
        suspects.append(finding.property);
    const StepRecord *const record = m_bench.run.lastRecord(line.step);
    // The record has the whole line, but may be forgotten.
    if (record && record->round == line.round && line.warning < record->warnings.size())
        return warningPlace(record->warnings.at(line.warning), *line.operation, record->operands,
                            suspects);
    return warningPlace(line.text, *line.operation, {}, suspects);
}

QString LogPanel::plainText(int row) const
{
    return m_log->plainText(m_shown->mapToSource(m_shown->index(row, 0)).row());
}
