#include "tests/zoo/Animals.h"

QList<Animal> fileAnimals()
{
    return {
        {"CrashOnLoad", 4, {"crashed file.loads"}, "signal 6 (SIGABRT)"},
        {"NewerApi", 3, {"failed file.accepted"}, "interface version 3, this host has version 2"},
        {"NoMetadata", 3, {"failed file.metadata", "failed file.loads"}, "there is no metadata"},
    };
}
