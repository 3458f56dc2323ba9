#include "tests/zoo/Animals.h"

QList<Animal> fileAnimals()
{
    return {
        {"ChangingIdentity", 1, {"failed file.reload"}, "org.example.Zoo, version 1.0.1"},
        {"Chatty", 0, {}, {}},
        {"CrashOnLoad", 4, {"crashed file.loads"}, "while: making the root object"},
        {"CrashOnUnload", 4, {"crashed file.reload"}, "signal 6 (SIGABRT)"},
        {"Demanding", 3, {"failed file.accepted"}, "it requires \"hasTeleport\""},
        {"ExitOnLoad", 4, {"crashed file.loads"}, "ended without a result, with status 0"},
        {"ExportedSymbol", 1, {"failed file.exports"}, "exports zooSecret()"},
        {"LoopOnLoad", 4, {"timed out file.loads"}, "it said: round and round", {"--timeout", "1"}},
        {"NewerApi", 3, {"failed file.accepted"}, "interface version 3, this host has version 2"},
        {"NewerQt",
         3,
         {"failed file.qt", "failed file.loads"},
         "built with Qt 5.99; this host has"},
        {"NoMetadata", 3, {"failed file.metadata", "failed file.loads"}, "there is no metadata"},
        {"OtherInterface", 1, {"failed file.interface"}, "IID: \"org.example.Other/1.0\""},
        {"OtherMode", 0, {"warning file.qt"}, "built in"},
        {"ResourceLeft", 1, {"failed file.reload"}, "resource :/zoo/left.txt is registered"},
        {"SlowLoad", 0, {"warning file.loadTime"}, "loading took", {"--only", "file.loadTime"}},
        {"Stranger", 3, {"failed file.interface", "failed file.accepted"}, "object Stranger does"},
        {"TextFile", 3, {"failed file.metadata", "failed file.loads"}, "there is no metadata"},
        {"UndefinedSymbol", 3, {"failed file.loads"}, "zooMissing"},
        {"WeakExport", 0, {"warning file.exports"}, "exports int zooTwice<int>(int), as weak"},
    };
}
