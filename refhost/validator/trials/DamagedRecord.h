#pragma once

#include "refhost/validator/trials/OperationRecord.h"

class Specimen;

/// Reads bytes that may be no record into a new step, tells of what is thrown, and uses the step
/// afterwards. `place` says which bytes these are.
LoadedRecord loadDamaged(Specimen &specimen, const QByteArray &bytes, const RecordForm &form,
                         const QString &place);
