#include "refhost/workbench/run/FindingsPanel.h"

#include "refhost/workbench/look/EmptyHint.h"
#include "refhost/workbench/run/FindingsModel.h"
#include "refhost/workbench/window/Workbench.h"

#include <QHeaderView>
#include <QLabel>
#include <QTreeView>
#include <QVBoxLayout>

FindingsPanel::FindingsPanel(Workbench &bench, QWidget *parent)
    : QWidget(parent)
    , m_bench(bench)
    , m_model(new FindingsModel(bench, this))
    , m_view(new QTreeView(this))
    , m_explanation(new QLabel(this))
{
    setUpView();
    setUpExplanation();
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_view);
    layout->addWidget(m_explanation);
    setFocusProxy(m_view);
    connect(m_model, &QAbstractItemModel::modelReset, this, [this] { explain({}); });
}

void FindingsPanel::setUpView()
{
    m_view->setObjectName(QStringLiteral("findings.table"));
    m_view->setAccessibleName(tr("检查"));
    m_view->setModel(m_model);
    m_view->setFrameShape(QFrame::NoFrame);
    m_view->setRootIsDecorated(false);
    m_view->setUniformRowHeights(true);
    m_view->setAllColumnsShowFocus(true);
    m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    const QFontMetrics metrics = m_view->fontMetrics();
    m_view->header()->resizeSection(FindingsModel::NumberColumn,
                                    metrics.horizontalAdvance(tr("步骤")) * 2);
    m_view->header()->resizeSection(FindingsModel::PlaceColumn, metrics.averageCharWidth() * 22);
    connect(m_view, &QTreeView::clicked, this, &FindingsPanel::goToFinding);
    connect(m_view, &QTreeView::activated, this, &FindingsPanel::goToFinding);
    connect(m_view->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &FindingsPanel::explain);
    auto *const nothing = new EmptyHint(tr("没有发现问题"), *m_model, *m_view);
    nothing->setObjectName(QStringLiteral("findings.nothing"));
}

void FindingsPanel::setUpExplanation()
{
    m_explanation->setObjectName(QStringLiteral("findings.explanation"));
    m_explanation->setTextFormat(Qt::PlainText);
    m_explanation->setWordWrap(true);
    m_explanation->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_explanation->setMargin(style()->pixelMetric(QStyle::PM_LayoutVerticalSpacing));
    m_explanation->hide();
}

void FindingsPanel::explain(const QModelIndex &index)
{
    m_explanation->setVisible(index.isValid());
    if (!index.isValid())
        return;
    const Finding &finding = m_model->finding(index.row());
    // In the table the message may be cut off.
    m_explanation->setText(
        QStringList{finding.message, finding.consequence, finding.remedy}.join(QLatin1Char('\n')));
}

void FindingsPanel::goToFinding(const QModelIndex &index) const
{
    const Finding &finding = m_model->finding(index.row());
    const int step = m_model->stepOf(index.row());
    if (step != 0) {
        m_bench.place.goTo({step, finding.property, 0});
        return;
    }
    const VariableState *const variable = m_bench.document.state().variableNamed(finding.property);
    if (variable)
        m_bench.place.goTo({0, {}, variable->id});
}
