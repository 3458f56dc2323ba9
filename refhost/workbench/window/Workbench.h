#pragma once

#include "refhost/workbench/document/CurrentPlace.h"
#include "refhost/workbench/document/LiveCheck.h"
#include "refhost/workbench/document/PendingEdits.h"
#include "refhost/workbench/document/TaskDocument.h"
#include "refhost/workbench/library/PluginLibrary.h"
#include "refhost/workbench/library/StepMigrator.h"
#include "refhost/workbench/run/RunSession.h"

#include <QStringList>

/// Everything of the workbench that is not a widget. The panels of the window stand on it.
struct Workbench
{
    /// Loads the plug-ins in `pluginFiles`, with their texts in `language` where they have them;
    /// without one texts stay as they are in the sources.
    explicit Workbench(const QStringList &pluginFiles, const QString &language = {});

    PluginLibrary library;
    TaskDocument document;
    PendingEdits pending;
    StepMigrator migrator;
    RunSession run;
    LiveCheck check;
    CurrentPlace place;
};
