#include "refhost/validator/CheckList.h"

#include "refhost/validator/checks/AcceptanceCheck.h"
#include "refhost/validator/checks/LoadingCheck.h"
#include "refhost/validator/checks/MetadataCheck.h"
#include "refhost/validator/checks/TypeIdsCheck.h"

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
    add<MetadataCheck, LoadingCheck, AcceptanceCheck>(checks);
    // Level 2: the catalogue.
    add<TypeIdsCheck>(checks);
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
