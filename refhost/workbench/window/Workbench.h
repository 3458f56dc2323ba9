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
    /// Loads the plug-ins in `pluginFiles`.
    explicit Workbench(const QStringList &pluginFiles);

    PluginLibrary library;
    TaskDocument document;
    PendingEdits pending;
    StepMigrator migrator;
    RunSession run;
    LiveCheck check;
    CurrentPlace place;
};
