#include "refhost/workbench/editor/EditorFactory.h"

#include "refhost/workbench/editor/ChoiceEditor.h"
#include "refhost/workbench/editor/FlagEditor.h"
#include "refhost/workbench/editor/NumberOperandEditor.h"
#include "refhost/workbench/editor/PlainEditor.h"
#include "refhost/workbench/editor/TextOperandEditor.h"
#include "refhost/workbench/editor/VariableNameEditor.h"

namespace {

bool isType(const PropertySchema &schema, const char *name)
{
    return schema.typeName == QLatin1String(name);
}

/// Choices are stored by their number: in an `int`, or in an enumeration, which can be one.
bool holdsChoice(const PropertySchema &schema)
{
    return !schema.choices.isEmpty() && !isType(schema, "bool") && !isType(schema, "QString") &&
           !isType(schema, "double") && schema.defaultValue.canConvert<int>();
}

PropertyEditor *createTextEditor(const PropertySchema &schema, const TaskDocument &document,
                                 QWidget *parent)
{
    if (schema.editor == QLatin1String("VARREF"))
        return new TextOperandEditor(schema, document, parent);
    if (schema.editor.startsWith(QLatin1String("NUMVAR")))
        return new NumberOperandEditor(schema, document, parent);
    if (schema.editor.startsWith(QLatin1String("VARNAME")))
        return new VariableNameEditor(schema, document, parent);
    return new PlainEditor(schema, document, true, parent);
}

} // namespace

PropertyEditor *createEditor(const PropertySchema &schema, bool writable,
                             const TaskDocument &document, QWidget *parent)
{
    if (!writable)
        return new PlainEditor(schema, document, false, parent);
    if (isType(schema, "QString"))
        return createTextEditor(schema, document, parent);
    if (schema.editor == QLatin1String("COMBO") && holdsChoice(schema))
        return new ChoiceEditor(schema, document, parent);
    if (isType(schema, "bool"))
        return new FlagEditor(schema, document, parent);
    return new PlainEditor(schema, document, true, parent);
}
