#include "refhost/workbench/look/EmptyHint.h"

#include <QAbstractItemModel>
#include <QAbstractScrollArea>
#include <QVBoxLayout>

EmptyHint::EmptyHint(const QString &text, const QAbstractItemModel &model,
                     QAbstractScrollArea &view)
    : QLabel(text, view.viewport())
    , m_model(model)
{
    setAlignment(Qt::AlignCenter);
    setWordWrap(true);
    setMargin(fontMetrics().height());
    setForegroundRole(QPalette::PlaceholderText);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    // The hint asks for no room of its own: the view may be as small as it likes.
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    auto *const layout = new QVBoxLayout(view.viewport());
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(this);
    connect(&model, &QAbstractItemModel::rowsInserted, this, &EmptyHint::update);
    connect(&model, &QAbstractItemModel::rowsRemoved, this, &EmptyHint::update);
    connect(&model, &QAbstractItemModel::modelReset, this, &EmptyHint::update);
    update();
}

void EmptyHint::update()
{
    setVisible(m_model.rowCount() == 0);
}
