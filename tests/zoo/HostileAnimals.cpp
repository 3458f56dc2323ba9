#include "tests/zoo/Animals.h"

QList<Animal> hostileAnimals()
{
    const auto only = [](const char *check) { return QStringList{"--only", check}; };
    return {
        {"CrashOnOddMode",
         4,
         {"crashed hostile.steps"},
         "while: zoo.sound: a random step; to see it again: oprun run ",
         only("hostile.steps")},
        {"LoopOnMark",
         4,
         {"timed out hostile.steps"},
         "libLoopOnMark-1-zoo.sound.json --plugin ",
         only("hostile.steps") + QStringList{"--timeout", "2"}},
        {"WritesOnNul",
         1,
         {"failed hostile.steps"},
         "doOperation writes \"other\", which is not its result variable; to see it again: oprun",
         only("hostile.steps")},
        {"RecursesIntoLists",
         4,
         {"crashed hostile.nesting"},
         "a list nested 50000 deep, text = \"$deep\"",
         only("hostile.nesting")},
        {"TakesAllMemory",
         1,
         {"failed hostile.largeTexts"},
         "all texts of 32 MiB, ordinary settings: doOperation throws std::bad_alloc",
         only("hostile.largeTexts")},
        {"SharedBuffer",
         1,
         {"failed hostile.threads"},
         "of 1600 runs on 4 threads at once gave something else",
         only("hostile.threads")},
        {"RecordByLocale",
         1,
         {"failed hostile.locales"},
         "the record is another one with the locale \"ar_EG\"",
         only("hostile.locales")},
        {"ResultByLocale", 0, {}, "", only("hostile.locales")},
    };
}
