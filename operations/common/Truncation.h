#pragma once

/// `number` converted toward zero. Outside the range of `int`, infinite or NaN, it is the smallest
/// `int`, so that callers see a negative number.
int truncateToInt(double number);
