#pragma once

#include "refhost/validator/Outcome.h"

#include <QByteArray>
#include <QString>

#include <optional>

// The lines in which the probe tells oprun what it does and what it found, each a JSON object.

/// Returns the line that says what the probe does next, with its line feed.
QByteArray activityLine(const QString &activity);
/// Returns the line with the outcome, with its line feed.
QByteArray outcomeLine(const Outcome &outcome);

/// Returns the activity that the line tells, nothing when it is another line.
std::optional<QString> activityIn(const QByteArray &line);
/// Returns the outcome that the line tells, nothing when it is another line.
std::optional<Outcome> outcomeIn(const QByteArray &line);
