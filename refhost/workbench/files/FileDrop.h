#pragma once

#include <QObject>
#include <QString>

class QWidget;

/// Takes a file that is dropped on a window, one at a time. Declines anything else, so that the
/// panels may have it.
class FileDrop : public QObject
{
    Q_OBJECT

public:
    /// Belongs to the window.
    explicit FileDrop(QWidget *window);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// Comes after the drop is over: the program the file comes from is not to wait for what is
    /// asked then.
    void dropped(const QString &path);
};
