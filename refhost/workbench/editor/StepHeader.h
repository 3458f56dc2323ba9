#pragma once

#include <QWidget>

class ExactTextEdit;
class Operation;
class QLabel;

/// What a step is and what it does, in its own words.
class StepHeader : public QWidget
{
    Q_OBJECT

public:
    explicit StepHeader(QWidget *parent = nullptr);

    void showStep(const Operation &step);

protected:
    void changeEvent(QEvent *event) override;

private:
    void arrange();
    void showColors();

    QLabel *m_icon;
    QLabel *m_name;
    QLabel *m_type;
    ExactTextEdit *m_description;
    ExactTextEdit *m_summary;
};
