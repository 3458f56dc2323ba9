#pragma once

#include <QTimer>
#include <QWidget>

#include <memory>

class ExactTextEdit;
class Operation;
class QLabel;

/// What a step is and what it does, in its own words.
class StepHeader : public QWidget
{
    Q_OBJECT

public:
    explicit StepHeader(QWidget *parent = nullptr);

    /// Shows the step. Where its texts take long to make, since huge operands are in them, they
    /// follow a moment after the last change.
    void showStep(const std::shared_ptr<const Operation> &step);

protected:
    void changeEvent(QEvent *event) override;

private:
    void showTexts();
    void arrange();
    void showColors();

    std::shared_ptr<const Operation> m_step;
    QTimer m_timer;
    bool m_isSlow = false; ///< making the texts took long the last time
    QLabel *m_icon;
    QLabel *m_name;
    QLabel *m_type;
    ExactTextEdit *m_description;
    ExactTextEdit *m_summary;
};
