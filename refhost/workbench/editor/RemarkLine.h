#pragma once

#include "refhost/workbench/editor/Remark.h"

#include <QWidget>

class QLabel;
class QPushButton;

/// A remark with its icon, and with a button where one click mends it. Hidden while there is none.
class RemarkLine : public QWidget
{
    Q_OBJECT

public:
    explicit RemarkLine(QWidget *parent = nullptr);

    void setRemark(const Remark &remark);
    const Remark &remark() const { return m_remark; }

    /// The text of the remark.
    QString text() const { return m_remark.text; }

protected:
    void changeEvent(QEvent *event) override;

private:
    void showColors();

    Remark m_remark;
    QLabel *m_icon;
    QLabel *m_text;
    QPushButton *m_button;
};
