#include "refhost/validator/CheckList.h"

#include "refhost/validator/checks/AcceptanceCheck.h"
#include "refhost/validator/checks/CheckRows.h"
#include "refhost/validator/checks/ChoicesCheck.h"
#include "refhost/validator/checks/CloneCheck.h"
#include "refhost/validator/checks/CloneLifeCheck.h"
#include "refhost/validator/checks/ConditionsCheck.h"
#include "refhost/validator/checks/DefaultsCheck.h"
#include "refhost/validator/checks/EditorsCheck.h"
#include "refhost/validator/checks/ExceptionsCheck.h"
#include "refhost/validator/checks/ExportsCheck.h"
#include "refhost/validator/checks/IconFilesCheck.h"
#include "refhost/validator/checks/IconPicturesCheck.h"
#include "refhost/validator/checks/IdentityCheck.h"
#include "refhost/validator/checks/IndependenceCheck.h"
#include "refhost/validator/checks/InterfaceIdCheck.h"
#include "refhost/validator/checks/KeysCheck.h"
#include "refhost/validator/checks/LargeTextsCheck.h"
#include "refhost/validator/checks/LoadTimeCheck.h"
#include "refhost/validator/checks/LoadingCheck.h"
#include "refhost/validator/checks/LocalesCheck.h"
#include "refhost/validator/checks/ManifestCheck.h"
#include "refhost/validator/checks/MembersCheck.h"
#include "refhost/validator/checks/MessagesCheck.h"
#include "refhost/validator/checks/MetadataCheck.h"
#include "refhost/validator/checks/NestingCheck.h"
#include "refhost/validator/checks/PropertiesCheck.h"
#include "refhost/validator/checks/PrototypesCheck.h"
#include "refhost/validator/checks/QtVersionCheck.h"
#include "refhost/validator/checks/RandomRecordsCheck.h"
#include "refhost/validator/checks/RecordCheck.h"
#include "refhost/validator/checks/RecordFormsCheck.h"
#include "refhost/validator/checks/ReloadCheck.h"
#include "refhost/validator/checks/RepetitionCheck.h"
#include "refhost/validator/checks/RestrictionsCheck.h"
#include "refhost/validator/checks/ResultTypesCheck.h"
#include "refhost/validator/checks/ResultVariableCheck.h"
#include "refhost/validator/checks/SettersCheck.h"
#include "refhost/validator/checks/StepsCheck.h"
#include "refhost/validator/checks/SummaryCheck.h"
#include "refhost/validator/checks/TextsCheck.h"
#include "refhost/validator/checks/ThreadsCheck.h"
#include "refhost/validator/checks/TruncatedRecordsCheck.h"
#include "refhost/validator/checks/TypeIdsCheck.h"
#include "refhost/validator/checks/WeightsCheck.h"
#include "refhost/validator/checks/WithoutResultCheck.h"
#include "refhost/validator/checks/WithoutScopeCheck.h"
#include "refhost/validator/checks/WritesCheck.h"

namespace {

using Checks = std::vector<std::unique_ptr<Check>>;

template <typename... T>
void add(Checks &checks)
{
    (checks.push_back(std::make_unique<T>()), ...);
}

} // namespace

Checks allChecks()
{
    Checks checks;
    // Level 1: the file.
    add<MetadataCheck, InterfaceIdCheck, QtVersionCheck, ExportsCheck, LoadingCheck,
        AcceptanceCheck, LoadTimeCheck, ReloadCheck>(checks);
    // Level 2: the catalogue.
    add<ManifestCheck, IdentityCheck, PrototypesCheck, TypeIdsCheck, WeightsCheck, TextsCheck,
        IconFilesCheck, IconPicturesCheck>(checks);
    // Level 3: annotations and properties.
    add<KeysCheck, EditorsCheck, RestrictionsCheck, ChoicesCheck, ConditionsCheck, PropertiesCheck,
        SettersCheck, IndependenceCheck, DefaultsCheck, ResultVariableCheck, MembersCheck>(checks);
    // Level 4: what operations do.
    add<WithoutScopeCheck, WithoutResultCheck, ResultTypesCheck, WritesCheck, RepetitionCheck,
        MessagesCheck, ExceptionsCheck, CloneCheck, CloneLifeCheck, SummaryCheck, RecordCheck,
        RecordFormsCheck, TruncatedRecordsCheck, RandomRecordsCheck>(checks);
    addRows(checks, inputChecks());
    addRows(checks, processChecks());
    addRows(checks, operandChecks());
    // Level 5: what they do under attack.
    add<StepsCheck, NestingCheck, LargeTextsCheck, ThreadsCheck, LocalesCheck>(checks);
    return checks;
}

std::unique_ptr<Check> makeCheck(const QString &id)
{
    Checks checks = allChecks();
    for (auto &check : checks) {
        if (check->info().id == id)
            return std::move(check);
    }
    return nullptr;
}
