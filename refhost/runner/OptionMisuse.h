#pragma once

#include <QCommandLineOption>
#include <QList>
#include <QString>
#include <QStringList>

class QCommandLineParser;

/// Returns why the options that `parser` found in `arguments` cannot be used, empty when they can:
/// one is unknown, lacks its value, or has several although it is not repeatable. `known` are the
/// options that the parser knows; for a suggestion there may be more.
QString optionMisuse(const QCommandLineParser &parser, const QList<QCommandLineOption> &known,
                     const QStringList &arguments);
