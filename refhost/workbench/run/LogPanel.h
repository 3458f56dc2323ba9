#pragma once

#include <QTimer>
#include <QWidget>

class LogFilter;
class LogModel;
class LogView;
class QCheckBox;
class RunChronicle;
struct LogLine;
struct Workbench;

/// What the steps of the run did, line by line.
class LogPanel : public QWidget
{
    Q_OBJECT

public:
    /// The workbench has to outlive the panel.
    explicit LogPanel(Workbench &bench, QWidget *parent = nullptr);

    /// Writes all lines that are shown to a file, as text with tabs; false when that fails.
    bool save(const QString &file) const;

private:
    void createView();
    QWidget *createBar();
    QAction *addAction(const char *name, const QString &text, const QKeySequence &shortcut,
                       const char *icon);
    void showLines(bool atOnce);
    void flush();
    void clear();
    void copySelected() const;
    void askAndSave();
    void goToLine(const QModelIndex &index) const;
    QString propertyOf(const LogLine &line) const;
    QString plainText(int row) const;

    Workbench &m_bench;
    RunChronicle *m_chronicle;
    LogModel *m_log;
    LogFilter *m_shown;
    LogView *m_view = nullptr;
    QTimer m_flushTimer; ///< a run is too quick to show every step at once
};
