#pragma once

#include <QObject>
#include <QStringList>

/// Base of the tests: fails a test function when a message is logged that it did not take with
/// `takeWarnings`, and when a warning names a file, a line, a function or no category.
class QuietTest : public QObject
{
    Q_OBJECT

protected:
    /// The warnings logged so far, oldest first; they are forgotten by this call.
    QStringList takeWarnings();

protected Q_SLOTS:
    void init();
    void cleanup();
};
