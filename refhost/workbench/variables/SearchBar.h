#pragma once

#include "refhost/workbench/variables/SlicedSearch.h"

#include <QTimer>
#include <QWidget>

#include <memory>

class QLabel;
class QLineEdit;
class QToolButton;
class WholeTextEdit;

/// Looks for a text in a `WholeTextEdit`. The window lives on meanwhile, however long it takes.
class SearchBar : public QWidget
{
    Q_OBJECT

public:
    /// The edit has to outlive the bar.
    explicit SearchBar(WholeTextEdit &edit, QWidget *parent = nullptr);

public Q_SLOTS:
    void findNext();
    void findPrevious();
    /// Lets the user type what to look for.
    void begin();

private:
    QToolButton *addButton(const QString &name, const QString &symbol, const QString &toolTip);
    void find(SlicedSearch::Direction direction);
    void advance();
    void tell(const QString &message);

    WholeTextEdit &m_edit;
    QLineEdit *m_sought;
    QLabel *m_message;
    QTimer m_timer;
    std::unique_ptr<SlicedSearch> m_search;
};
