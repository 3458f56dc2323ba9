#pragma once

#include "refhost/engine/check/CheckRule.h"

/// The rules about choices that a step offers.
QList<SettingRule> choiceRules();

/// The rules about what these choices hide.
QList<SettingRule> hiddenRules();
