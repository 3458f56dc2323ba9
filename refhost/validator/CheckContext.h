#pragma once

#include <QList>
#include <QString>

#include <optional>

class IOperationPlugin;
class Operation;
class QObject;

/// What a check works on: one plug-in, in a process that ends with the check.
///
/// The process ends without cleaning up. So a check may leave behind the objects a plug-in gave it;
/// it has to, where a plug-in might hand out the same one twice.
class CheckContext
{
public:
    /// `file` is the absolute path of the plug-in. In `keepFolder` a check leaves tasks that show
    /// what is wrong. `output` is the pipe to oprun, negative where there is none.
    CheckContext(const QString &file, quint32 seed, const QString &keepFolder, int output);

    const QString &file() const { return m_file; }

    /// Where random values start from; the same seed gives the same check.
    quint32 seed() const { return m_seed; }

    /// The folder for tasks that show what is wrong.
    const QString &keepFolder() const { return m_keepFolder; }

    /// Tells oprun what is done next, for instance "text.pad: saveOperation", for the case that the
    /// process ends or hangs while doing it.
    void doing(const QString &activity);
    /// Lets `doing` tell nothing from now on: in a copy of the process, whose lines would get
    /// between those of this one.
    void stopTelling() { m_output = -1; }

    /// Loads the library with all of its symbols and makes the root object; why that does not work,
    /// otherwise nothing.
    std::optional<QString> loadLibrary();
    /// Loads the library and asks whether this host accepts it; why not, otherwise nothing.
    std::optional<QString> loadPlugin();

    /// The root object; only for checks that need the library.
    QObject &root() const { return *m_root; }
    /// The interface of the root object; only for checks that need the plug-in.
    IOperationPlugin &plugin() const { return *m_plugin; }

    /// What `createPrototypes` gives now, without nulls and doubles, which one check alone has to
    /// tell of.
    QList<Operation *> newPrototypes();

    /// What to call an operation in details: its type identifier, or its class when it has none.
    QString nameOf(const Operation &operation);

private:
    QString m_file;
    quint32 m_seed;
    QString m_keepFolder;
    int m_output;
    QObject *m_root = nullptr;
    IOperationPlugin *m_plugin = nullptr;
};
