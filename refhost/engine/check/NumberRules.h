#pragma once

#include "refhost/engine/check/CheckRule.h"

/// The rules about numbers that are written as they were not meant.
QList<SettingRule> numberRules();
