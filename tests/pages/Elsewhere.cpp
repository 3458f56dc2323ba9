#include "tests/pages/Elsewhere.h"

namespace {

/// Goes the way of an author of plug-ins.
const char *const outside = "OutsideProject";

} // namespace

QVector<Elsewhere> commandsRunElsewhere()
{
    using By = Elsewhere::By;
    const QString suite = "scripts/test --parallel \"$(nproc)\"";
    const QString hours = "takes hours; MutationFinderTest and EqualMutantsTest see to its parts";
    return {
        // README.md
        {"scripts/demo", By::Test, "Example.tour"},
        {"scripts/test", By::Ci, suite},
        {"cmake --preset release && cmake --build --preset release && ctest --preset release",
         By::Ci, suite},
        {"cmake -S . -B build/host -G Ninja -D CMAKE_BUILD_TYPE=Release "
         "-D OPERATIONCORE_INCLUDE_DIR=/path/to/include "
         "-D OPERATIONCORE_LIBRARY=/path/to/libOperationCore.so",
         By::Test, "BuildAgainstHost"},
        {"cmake --build build/host", By::Test, "BuildAgainstHost"},
        {"cmake --install build/release --prefix ~/.local", By::Test, "InstallTree"},
        {"scripts/package", By::Ci, "scripts/package release"},
        {"scripts/try-packages", By::Ci, "scripts/try-packages"},

        // docs/compatibility.md
        {"scripts/update-golden 1.1", By::People, "writes the records of a version to come"},
        {"cmake -S . -B build -G Ninja -D CMAKE_BUILD_TYPE=Release && cmake --build build && "
         "cd build && ctest",
         By::People, "takes a system with that CMake; scripts/test-on has it"},

        // docs/mutation.md
        {"scripts/mutate", By::People, hours},
        {"scripts/mutate --file 'TextPad*'", By::People, hours},
        {"scripts/mutate --every 10", By::People, hours},
        {"scripts/mutate --list --file 'common/*'", By::People, hours},

        // docs/oprun.1
        {"oprun validate --level 5 libTextOperPlugin.so", By::Test, "PassesAllChecks"},

        // docs/oprun.md
        {"parallel --pipe -k --block 4M oprun run examples/invoice.json --each - < rows.jsonl > "
         "result.jsonl",
         By::People, "parallel is a package of its own, and not on every system"},

        // docs/workbench.md
        {"opworkbench --plugin build/libMyPlugin.so task.json", By::Test, "ReloadTest"},

        // docs/writing-a-plugin.md
        {"cmake --preset release && cmake --build --preset release", By::Ci, suite},
        {"cmake --install build/release --prefix ~/operations", By::Test, "InstallTree"},
        {"opworkbench --plugin build/CountPlugin.so log-errors.json", By::Test, "ReloadTest"},
        {"gdb --args opworkbench --plugin build/CountPlugin.so log-errors.json", By::People,
         "a debugger waits for what people tell it"},
    };
}

QVector<Elsewhere> pagesRunElsewhere()
{
    return {{"docs/writing-a-plugin.md", Elsewhere::By::Test, outside},
            {"examples/plugin/README.md", Elsewhere::By::Test, outside}};
}
