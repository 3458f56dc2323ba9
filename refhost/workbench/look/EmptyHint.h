#pragma once

#include <QLabel>

class QAbstractItemModel;
class QAbstractScrollArea;

/// A quiet text in the middle of a view, shown while its model has no rows.
class EmptyHint : public QLabel
{
    Q_OBJECT

public:
    /// Becomes a child of the viewport; the model has to outlive the view.
    EmptyHint(const QString &text, const QAbstractItemModel &model, QAbstractScrollArea &view);

private:
    void update();

    const QAbstractItemModel &m_model;
};
