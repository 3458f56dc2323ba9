#pragma once

#include "refhost/engine/check/CheckRule.h"

/// The rules about texts that a step searches for.
QList<SettingRule> searchRules();
