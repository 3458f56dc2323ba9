#pragma once

#include <QTreeView>

class LogFilter;
class LogModel;

/// The lines of the log. What is not about values written, and has nothing in the columns behind
/// its text, takes their width too.
class LogView : public QTreeView
{
    Q_OBJECT

public:
    /// The lines of `log` that `shown` lets through. Both have to outlive the view.
    LogView(const LogModel &log, LogFilter &shown, QWidget *parent = nullptr);

protected:
    void drawRow(QPainter *painter, const QStyleOptionViewItem &options,
                 const QModelIndex &index) const override;
    void focusInEvent(QFocusEvent *event) override;

private:
    const LogModel &m_log;
    const LogFilter &m_shown;
};
