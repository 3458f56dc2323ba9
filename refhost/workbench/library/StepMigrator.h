#pragma once

#include <QHash>
#include <QObject>
#include <QStringList>

#include <memory>

class Operation;
class PluginLibrary;
class TaskDocument;

/// Keeps the steps of a document, those of its history included, at the version of the plug-ins
/// that is loaded: when a plug-in is loaded anew, the steps follow, without a step of undo.
class StepMigrator : public QObject
{
    Q_OBJECT

public:
    /// Both have to outlive this object.
    StepMigrator(TaskDocument &document, PluginLibrary &library, QObject *parent = nullptr);
    ~StepMigrator() override;

Q_SIGNALS:
    /// The steps have followed a plug-in that was loaded anew. `lost` tells, line by line, which
    /// settings of the present task the new version does not have.
    void migrated(const QStringList &lost);

private:
    using Shared = std::shared_ptr<const Operation>;

    /// What became of an operation. Both are kept, so that neither address is used again.
    struct Migration
    {
        Shared from;
        Shared to;
        QStringList lost;
    };

    Shared newer(const Shared &operation);
    void follow();
    QStringList lostSettings() const;

    TaskDocument &m_document;
    PluginLibrary &m_library;
    QHash<const Operation *, Migration> m_migrations; ///< to the present version, by the old
    QHash<const Operation *, Migration> m_origins;    ///< by the new; `from` is as it was written
};
