#pragma once

#include "refhost/engine/check/CheckRule.h"

/// The rules about operands that stand for themselves.
QList<SettingRule> literalRules();
