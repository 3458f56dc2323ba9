#pragma once

#include "refhost/validator/trials/StepTrial.h"

#include <QString>

#include <optional>

class Specimen;
struct PropertySchema;

/// Whether a run reads the property as an operand or as the name of a variable; false for the name
/// of the result variable.
bool isInput(const PropertySchema &property);

/// Runs a new step on `before`, with ordinary settings but for `setting`. A property that is shown
/// for some values of a mode only is tried with the first of them.
StepTrial tryOperand(Specimen &specimen, const TrialSetting &setting, const VariableScope &before);

/// The value that the run wrote to the result variable, nothing when it wrote none.
std::optional<QVariant> writtenResult(const StepTrial &trial);

/// Whether both runs wrote the same result, or none.
bool haveSameResult(const StepTrial &left, const StepTrial &right);

/// The result as a detail shows it.
QString shownResult(const StepTrial &trial);
