#include "refhost/workbench/run/OperandsPanel.h"

#include "refhost/engine/OperandText.h"
#include "refhost/workbench/look/Shades.h"
#include "refhost/workbench/look/ShownToolTip.h"
#include "refhost/workbench/look/SymbolIcon.h"
#include "refhost/workbench/run/WarningPlace.h"
#include "refhost/workbench/values/DurationText.h"
#include "refhost/workbench/values/ValuePreview.h"
#include "refhost/workbench/values/VisibleText.h"
#include "refhost/workbench/window/Workbench.h"

#include "Operation.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QTimer>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <utility>

namespace {

enum Column { NameColumn, WrittenColumn, FoundColumn };

constexpr int mostUnits = 500;
constexpr int valueRole = Qt::UserRole;        ///< the whole value
constexpr int placeRole = Qt::UserRole + 1;    ///< the property it belongs to
constexpr int variableRole = Qt::UserRole + 2; ///< the variable it belongs to
constexpr int warningRole = Qt::UserRole + 3;  ///< whether the value is a warning

/// The value as the step took it: for its number or for its text.
QVariant takenValue(const OperandRecord &operand)
{
    if (operand.role == PropertyRole::Number) {
        const auto number = numberInValue(operand.found);
        return number ? QVariant(*number) : QVariant();
    }
    const bool isList = operand.found.userType() == QMetaType::QVariantList;
    if (operand.role == PropertyRole::Input || isList || !operand.found.isValid())
        return operand.found;
    return textOfValue(operand.found);
}

} // namespace

OperandsPanel::OperandsPanel(Workbench &bench, QWidget *parent)
    : QWidget(parent)
    , m_bench(bench)
    , m_status(new QLabel(this))
{
    m_status->setObjectName(QStringLiteral("operands.status"));
    m_status->setTextFormat(Qt::PlainText);
    m_status->setWordWrap(true);
    m_status->setMargin(style()->pixelMetric(QStyle::PM_LayoutVerticalSpacing));
    createView();
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_status);
    layout->addWidget(m_view, 1);
    setFocusProxy(m_view);
    connect(&bench.place, &CurrentPlace::stepChanged, this, &OperandsPanel::scheduleUpdate);
    connect(&bench.run, &RunSession::valuesChanged, this, &OperandsPanel::scheduleUpdate);
    connect(&bench.run, &RunSession::stateChanged, this, &OperandsPanel::scheduleUpdate);
    connect(&bench.document, &TaskDocument::changed, this, &OperandsPanel::scheduleUpdate);
    update();
}

void OperandsPanel::createView()
{
    m_view = new QTreeWidget(this);
    m_view->setObjectName(QStringLiteral("operands.table"));
    m_view->setAccessibleName(tr("上次运行"));
    m_view->setHeaderLabels({tr("名称"), tr("写的"), tr("读到的")});
    m_view->setFrameShape(QFrame::NoFrame);
    m_view->setRootIsDecorated(false);
    m_view->setUniformRowHeights(true);
    m_view->setAllColumnsShowFocus(true);
    m_view->setItemsExpandable(false);
    m_view->setIndentation(fontMetrics().averageCharWidth());
    m_view->setContextMenuPolicy(Qt::ActionsContextMenu);
    m_view->header()->setSectionResizeMode(QHeaderView::Stretch);
    auto *const copy =
        new QAction(symbolIcon(QStringLiteral("copy")), tr("复制完整的值(&C)"), m_view);
    copy->setObjectName(QStringLiteral("operands.copy"));
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutContext(Qt::WidgetShortcut);
    m_view->addAction(copy);
    connect(copy, &QAction::triggered, this, &OperandsPanel::copyValue);
    // Activated by a double click or by Enter.
    connect(m_view, &QTreeWidget::itemActivated, this, &OperandsPanel::goToItem);
}

/// Rows keep the colours they are made with.
void OperandsPanel::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && m_view)
        scheduleUpdate();
}

/// Several things change at once when a run halts.
void OperandsPanel::scheduleUpdate()
{
    if (std::exchange(m_isLate, true))
        return;
    QTimer::singleShot(0, this, &OperandsPanel::update);
}

void OperandsPanel::update()
{
    m_isLate = false;
    const StepRecord *const record = m_bench.run.lastRecord(m_bench.place.step());
    m_status->setText(statusText(record));
    m_status->setAlignment(record ? Qt::AlignLeading | Qt::AlignVCenter : Qt::AlignCenter);
    m_status->setForegroundRole(record ? QPalette::WindowText : QPalette::PlaceholderText);
    m_view->setVisible(record != nullptr);
    m_view->clear();
    if (record)
        fill(*record);
}

QString OperandsPanel::statusText(const StepRecord *record) const
{
    const StepState *const step = m_bench.document.state().step(m_bench.place.step());
    if (!step)
        return tr("没有选中步骤");
    if (!record)
        return tr("此步骤还没有运行");
    const QString time = durationText(record->nanoseconds);
    if (step->operation != record->operation)
        return tr("用时 %1。此步骤在运行之后修改过，下面是修改之前的结果。").arg(time);
    return tr("用时 %1").arg(time);
}

void OperandsPanel::fill(const StepRecord &record)
{
    if (!record.operands.isEmpty()) {
        QTreeWidgetItem *const section = addSection(tr("操作数"));
        for (const OperandRecord &operand : record.operands)
            addOperand(section, operand);
    }
    if (!record.writes.isEmpty()) {
        QTreeWidgetItem *const section = addSection(tr("写入的变量"));
        for (const WriteRecord &write : record.writes)
            addWrite(section, write);
    }
    if (!record.warnings.isEmpty()) {
        QTreeWidgetItem *const section = addSection(tr("警告"));
        for (const QString &line : record.warnings)
            addWarning(section, line);
    }
    m_view->expandAll();
}

QTreeWidgetItem *OperandsPanel::addSection(const QString &title)
{
    auto *const section = new QTreeWidgetItem(m_view, {title});
    section->setFirstColumnSpanned(true);
    section->setFlags(Qt::ItemIsEnabled);
    QFont font = m_view->font();
    font.setBold(true);
    section->setFont(NameColumn, font);
    return section;
}

void OperandsPanel::addOperand(QTreeWidgetItem *section, const OperandRecord &operand)
{
    const Shades shades = Shades::of(palette());
    const QVariant value = takenValue(operand);
    const bool isNoNumber =
        operand.role == PropertyRole::Number && !value.isValid() && operand.found.isValid();
    auto *const item = new QTreeWidgetItem(section);
    item->setText(NameColumn, operand.label.isEmpty() ? operand.property : operand.label);
    item->setText(WrittenColumn, valueLine(operand.written));
    item->setText(FoundColumn, isNoNumber ? tr("%1（不是数值）").arg(valueLine(operand.found))
                                          : valueLine(value));
    for (int column = 0; column <= FoundColumn; ++column)
        item->setToolTip(column, shownToolTip(item->text(column)));
    if (operand.isReference)
        item->setForeground(WrittenColumn, shades.reference);
    if (!value.isValid())
        item->setForeground(FoundColumn, shades.warning);
    item->setData(NameColumn, valueRole, isNoNumber ? operand.found : value);
    item->setData(NameColumn, placeRole, operand.property);
}

void OperandsPanel::addWrite(QTreeWidgetItem *section, const WriteRecord &write)
{
    auto *const item = new QTreeWidgetItem(section);
    item->setText(NameColumn, visibleText(write.variable, mostUnits));
    item->setText(FoundColumn, valueLine(write.value));
    item->setToolTip(NameColumn, shownToolTip(item->text(NameColumn)));
    item->setToolTip(FoundColumn, shownToolTip(item->text(FoundColumn)));
    item->setBackground(FoundColumn, Shades::of(palette()).written);
    item->setData(NameColumn, valueRole, write.value);
    item->setData(NameColumn, variableRole, write.variable);
}

void OperandsPanel::addWarning(QTreeWidgetItem *section, const QString &line)
{
    const QString shown = visibleText(line, mostUnits);
    auto *const item = new QTreeWidgetItem(section, {shown});
    item->setFirstColumnSpanned(true);
    item->setToolTip(NameColumn, shownToolTip(shown));
    item->setForeground(NameColumn, Shades::of(palette()).warning);
    item->setData(NameColumn, valueRole, line);
    item->setData(NameColumn, warningRole, true);
}

void OperandsPanel::goToItem(const QTreeWidgetItem *item) const
{
    const int step = m_bench.place.step();
    const StepRecord *const record = m_bench.run.lastRecord(step);
    const QString name = item->data(NameColumn, variableRole).toString();
    QVariant property = item->data(NameColumn, placeRole);
    if (record && item->data(NameColumn, warningRole).toBool()) {
        const QString line = item->data(NameColumn, valueRole).toString();
        property = warningPlace(line, *record->operation, record->operands);
    }
    if (const VariableState *const variable = m_bench.document.state().variableNamed(name))
        m_bench.place.goTo({0, {}, variable->id});
    else if (property.isValid())
        m_bench.place.goTo({step, property.toString(), 0});
}

void OperandsPanel::copyValue() const
{
    const QTreeWidgetItem *const item = m_view->currentItem();
    if (item && item->data(NameColumn, valueRole).isValid())
        QGuiApplication::clipboard()->setText(textOfValue(item->data(NameColumn, valueRole)));
}
