#pragma once

#include "refhost/engine/check/CheckRule.h"

/// The rules about references in operands.
QList<SettingRule> referenceRules();
