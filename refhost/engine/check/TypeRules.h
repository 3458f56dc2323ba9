#pragma once

#include "refhost/engine/check/CheckRule.h"

/// The rules about the types of what references find.
QList<SettingRule> typeRules();
