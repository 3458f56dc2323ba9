#pragma once

#include <QCoreApplication>

/// Translates messages of oprun: `RunnerText::tr("...")` returns the English text unless a
/// translation of the context "Runner" is installed. Help texts and texts that programs read, such
/// as JSON keys, are not translated.
class RunnerText
{
    Q_DECLARE_TR_FUNCTIONS(Runner)
};
