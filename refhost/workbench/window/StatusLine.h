#pragma once

#include <QStatusBar>

class QLabel;
struct Workbench;

/// How the run stands, how large the task is and what was found in it.
class StatusLine : public QStatusBar
{
    Q_OBJECT

public:
    /// The workbench has to outlive the line.
    explicit StatusLine(Workbench &bench, QWidget *parent = nullptr);

    /// Shows a message for a while.
    void tell(const QString &text);

private:
    void follow();
    QString runText() const;
    QString findingsText() const;

    Workbench &m_bench;
    QLabel *m_run;
    QLabel *m_size;
    QLabel *m_findings;
};
