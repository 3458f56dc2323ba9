#pragma once

#include "refhost/workbench/edits/StepEdits.h"

#include <QElapsedTimer>
#include <QListView>

class StepModel;
struct Workbench;

/// The list of steps: a click beside a row sets a breakpoint, steps are dragged to other places,
/// and operations of the catalogue and tasks as text are dropped where they belong.
class StepView : public QListView
{
    Q_OBJECT

public:
    /// The workbench has to outlive the view.
    explicit StepView(Workbench &bench, QWidget *parent = nullptr);

    /// The selected steps in their order.
    QVector<int> selectedSteps() const;

    /// Typed digits go to the step of that number; other keys do nothing.
    void keyboardSearch(const QString &search) override;

Q_SIGNALS:
    /// What was dropped cannot be used, and why.
    void refused(const QString &message);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    int dropRowAt(const QPoint &position) const;
    void setDropRow(int row);
    bool toggleBreakpointAt(const QMouseEvent &event);
    void editStep(const QModelIndex &index);
    void drop(const QDropEvent &event, int row);

    Workbench &m_bench;
    StepEdits m_edits;
    StepModel *m_model;
    int m_dropRow = -1; ///< in front of which something would be dropped now
    QString m_typedNumber;
    QElapsedTimer m_sinceTyped;
};
