#pragma once

#include <QJsonValue>
#include <QVariant>

// Between the values of properties and JSON, with nothing lost. A text that JSON cannot say stands
// as
// {"units": "0061 d83d"}, one of many repetitions as {"repeat": "ab", "times": 35000}, a null text
// as null.

/// `value`, of type QString, int or bool, as JSON.
QJsonValue goldenToJson(const QVariant &value);

/// The value that `json` stands for, invalid when it is none of those that `goldenToJson` gives.
QVariant goldenFromJson(const QJsonValue &json);
