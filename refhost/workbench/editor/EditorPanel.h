#pragma once

#include <QPointer>
#include <QWidget>

class QLabel;
class QScrollArea;
class QVBoxLayout;
class StepForm;
class StepHeader;
struct EditPlace;
struct StepState;
struct Workbench;

/// The editor of the current step, built from the annotations of its operation.
class EditorPanel : public QWidget
{
    Q_OBJECT

public:
    /// The workbench has to outlive the panel.
    explicit EditorPanel(Workbench &bench, QWidget *parent = nullptr);

private:
    void createWidgets();
    void connectBench();
    const StepState *currentStep() const;
    void showCurrent();
    void rebuild();
    void showFindings();
    void focusPlace(const EditPlace &place);

    Workbench &m_bench;
    QLabel *m_empty;
    QScrollArea *m_scroll;
    QWidget *m_page;
    QVBoxLayout *m_column;
    StepHeader *m_header;
    QPointer<StepForm> m_form;
};
