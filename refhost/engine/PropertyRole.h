#pragma once

class Operation;
struct PropertySchema;

/// What a property is to its step, as its annotations tell.
enum class PropertyRole {
    Text,   ///< an operand taken for its text: a literal or a reference
    Number, ///< an operand taken for its number: a literal or a reference
    Input,  ///< the bare name of a variable that the step reads
    Result, ///< the bare name of the variable that the step writes
    Other   ///< a choice, a flag or a plain value
};

PropertyRole roleOf(const PropertySchema &property);

/// Whether the editor of `step` shows the property: always, or while the choice it depends on has
/// one of the values that show it.
bool isShown(const PropertySchema &property, const Operation &step);
