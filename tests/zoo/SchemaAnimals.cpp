#include "tests/zoo/Animals.h"

namespace {

QList<Animal> annotationAnimals()
{
    return {
        {"DoubledKey", 1, {"failed schema.keys"}, "varref_kind_text: stands twice"},
        {"EmptyLabel", 1, {"failed schema.keys"}, "prop_text: the label is empty"},
        {"KeyOfNothing", 1, {"failed schema.keys"}, "prop_ghost: there is no property \"ghost\""},
        {"KeysOutOfOrder",
         1,
         {"failed schema.keys"},
         "prop_text: stands behind varname_type_resultVar"},
        {"MissingLabel", 1, {"failed schema.keys"}, "property text has no label prop_text"},
        {"MisspeltKey", 1, {"failed schema.keys"}, "zoo.sound: porp_text: no such key"},
        {"EditorUnfit", 1, {"failed schema.editors"}, "editor_text: \"COMBO\""},
        {"MissingEditor", 1, {"failed schema.editors"}, "editor_text: missing"},
        {"UnknownEditor",
         1,
         {"failed schema.editors"},
         "editor_text: \"VARREFF\"; expected VARREF,"},
        {"SpacedTypes", 1, {"failed schema.restrictions"}, "unknown word \" double\""},
        {"VarRefOfTwoKinds", 1, {"failed schema.restrictions"}, "VARREF and both of"},
        {"VarRefWithoutKind", 1, {"failed schema.restrictions"}, "VARREF and none of"},
        {"WrongVarNameType",
         1,
         {"failed schema.restrictions"},
         "varname_type_resultVar: \"int\"; expected \"string\""},
        {"ChoicesOnText", 1, {"failed schema.choices"}, "choices_text: \"a|b\""},
        {"ComboWithoutChoices", 1, {"failed schema.choices"}, "choices_mode: missing"},
        {"DoubledChoice", 1, {"failed schema.choices"}, "label 1, \"plain\", stands there twice"},
        {"EmptyChoice", 1, {"failed schema.choices"}, "choices_mode: label 1 is empty"},
        {"OneChoice", 0, {"warning schema.choices"}, "choices_mode: only one choice"},
        {"SpacedChoice", 1, {"failed schema.choices"}, "label 0, \"plain \", has spaces"},
        {"ConditionAlways", 0, {"warning schema.conditions"}, "\"mode=0|1\": names every choice"},
        {"ConditionDoubled", 1, {"failed schema.conditions"}, "value 1 stands twice"},
        {"ConditionMalformed", 1, {"failed schema.conditions"}, "\"mode==1\"; expected the form"},
        {"ConditionOnItself",
         1,
         {"failed schema.conditions"},
         "show_when_mode: \"mode=1\": depends on itself"},
        {"ConditionOnNothing", 1, {"failed schema.conditions"}, "there is no property \"mood\""},
        {"ConditionOnText", 1, {"failed schema.conditions"}, "property text has no choices"},
        {"ConditionOutOfRange", 1, {"failed schema.conditions"}, "value 2; expected 0 to 1"},
    };
}

QList<Animal> propertyAnimals()
{
    return {
        {"FinalProperty", 1, {"failed schema.properties"}, "property text is FINAL"},
        {"NotifyingProperty",
         1,
         {"failed schema.properties", "failed schema.members"},
         "property text has a NOTIFY signal"},
        {"ReadOnlyProperty", 1, {"failed schema.properties"}, "property text cannot be written"},
        {"UnstorableType", 1, {"failed schema.properties"}, "words is of type QStringList"},
        {"ClampingSetter", 1, {"failed schema.setters"}, "mode = -1: gives back 0"},
        {"TrimmingSetter", 1, {"failed schema.setters"}, "text = \" \": gives back \"\""},
        {"MeddlingSetter",
         1,
         {"failed schema.independence"},
         "changes suffix from \"\" to \"none\""},
        {"ChangingDefault",
         1,
         {"failed schema.defaults"},
         "text is \"1\" in a fresh object, but \"2\" in the next one"},
        {"DefaultOutOfRange",
         1,
         {"failed schema.defaults"},
         "mode is 7 in a fresh object; expected 0 to 1"},
        {"MissingResultVar", 1, {"failed schema.resultVar"}, "no property resultVar"},
        {"ResultVarNoName", 1, {"failed schema.resultVar"}, "editor_resultVar: \"VARREF\""},
        {"ResultVarNotLast", 1, {"failed schema.resultVar"}, "the last property is text"},
        {"ExtraEnumerator", 1, {"failed schema.members"}, "enumerator Mood"},
        {"ExtraSlot", 1, {"failed schema.members"}, "slot rest()"},
        {"InvokableConstructor",
         1,
         {"failed schema.members"},
         "invokable constructor InvokableConstructorOperation()"},
        {"NoMetaObject",
         1,
         {"failed schema.resultVar", "failed schema.members"},
         "its meta-object is Operation"},
    };
}

} // namespace

QList<Animal> schemaAnimals()
{
    return annotationAnimals() + propertyAnimals();
}
