#pragma once

#include "refhost/engine/check/CheckRule.h"

/// The rules about properties that hold the bare name of a variable.
QList<SettingRule> nameRules();
