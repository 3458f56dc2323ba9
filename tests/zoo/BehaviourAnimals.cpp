#include "tests/zoo/Animals.h"

namespace {

QList<Animal> runningAnimals()
{
    return {
        {"KeepsScope", 1, {"failed behaviour.withoutScope"}, "taken away: writes result"},
        {"LogsWithoutScope", 1, {"failed behaviour.withoutScope"}, "logs \"[Sound] no variables\""},
        {"SilentWithoutResult", 1, {"failed behaviour.withoutResult"}, "logs 0 warnings"},
        {"WritesWithoutName", 1, {"failed behaviour.withoutResult"}, "writes \"\""},
        {"SilentRefusal", 0, {"warning behaviour.resultTypes"}, "neither writes it nor logs"},
        {"WarnsTwice", 1, {"failed behaviour.resultTypes"}, "ordinary settings: logs 2 warnings"},
        {"WritesAnyType", 1, {"failed behaviour.resultTypes"}, "four-five. \", of type QString"},
        {"DeclaresVariable", 1, {"failed behaviour.writes"}, "writes zooTrace besides"},
        {"WritesTwo", 1, {"failed behaviour.writes"}, "ordinary settings: writes line besides"},
        {"ChangesItself", 1, {"failed behaviour.repetition"}, "the run changes a property"},
        {"CountsRuns",
         1,
         {"failed behaviour.repetition"},
         "new step result is \"2\" instead of \"1\""},
        {"KeepsResult", 1, {"failed behaviour.repetition"}, "with a step used before result is"},
        {"RemembersScope",
         1,
         {"failed behaviour.repetition"},
         "before other variables are written"},
        {"CriticalMessage",
         1,
         {"warning behaviour.resultTypes", "failed behaviour.messages"},
         "is a critical message"},
        {"DebugMessage", 1, {"failed behaviour.messages"}, "toString logs \"here\""},
        {"PlacedWarning", 0, {"warning behaviour.messages"}, "its place in the source, zoo.cpp:7"},
        {"TwoLineWarning", 1, {"failed behaviour.messages"}, "is more than one line"},
        {"UntaggedWarning", 0, {"warning behaviour.messages"}, "does not begin with a tag"},
        {"ThrowsInRun",
         1,
         {"failed behaviour.exceptions"},
         "mode = 99: doOperation throws mode 99"},
        {"ThrowsInSummary", 1, {"failed behaviour.exceptions"}, "99: toString throws mode 99"},
    };
}

QList<Animal> copyingAnimals()
{
    return {
        {"CloneForgets", 1, {"failed behaviour.clone"}, "the clone's suffix: \"\"; expected"},
        {"CloneForgetsState", 1, {"failed behaviour.clone"}, "has not the baseState"},
        {"CloneOfBase", 1, {"failed behaviour.clone"}, "the clone is of another class"},
        {"NullClone", 1, {"failed behaviour.clone"}, "clone gives null"},
        {"CloneCopiesScope", 1, {"failed behaviour.cloneLife"}, "takes over the scope"},
        {"CloneShares",
         1,
         {"failed behaviour.cloneLife"},
         "changing the clone changes the original"},
        {"OrphanClone", 1, {"failed behaviour.cloneLife"}, "does not belong to the parent"},
        {"SummaryBareVariable", 1, {"failed behaviour.summary"}, "without \"$\""},
        {"SummaryOfTwoLines",
         1,
         {"failed behaviour.summary"},
         "\"Sound: \\n\" is more than one line"},
        {"SummaryWithoutName",
         1,
         {"failed behaviour.summary"},
         "expected to begin with \"Sound: \""},
    };
}

QList<Animal> recordAnimals()
{
    const QStringList bothRecords{"failed behaviour.record", "failed behaviour.recordForms"};
    return {
        {"BaseRecordLast", 1, bothRecords, "the record does not begin with that of Operation"},
        {"NoBaseRecord", 1, bothRecords, "does not restore the baseState"},
        {"RecordForgets", 1, bothRecords, "after loadOperation, suffix: \"\"; expected"},
        {"RecordLeavesBytes", 1, bothRecords + QStringList{"failed behaviour.truncatedRecords"},
         "loadOperation reads 38 bytes of a record of 42"},
        {"ChangesStream", 1, {"failed behaviour.recordForms"}, "saveOperation changes the stream"},
        {"OwnByteOrder", 1, {"failed behaviour.recordForms"}, "in the same byte order whatever"},
        {"RecordByVersion", 1, {"failed behaviour.recordForms"}, "big endian, 5.0: after loadOp"},
        {"HidesTruncation",
         1,
         {"failed behaviour.truncatedRecords"},
         "0 of 44 bytes: the stream is"},
        {"ThrowsOnTruncation",
         1,
         {"failed behaviour.truncatedRecords", "failed behaviour.randomRecords"},
         "2 of 44 bytes: loadOperation throws record too short"},
        {"TrustsLength",
         1,
         {"failed behaviour.randomRecords"},
         "loadOperation throws std::bad_alloc"},
    };
}

QList<Animal> processAnimals()
{
    return {
        {"SetsLocale",
         1,
         {"failed behaviour.process"},
         "doOperation, ordinary settings: changes the default locale from \"is_IS\" to \"de_DE\""},
        {"ChangesFolder",
         1,
         {"failed behaviour.process"},
         "doOperation, ordinary settings: changes the working folder from "},
        {"PrintsResult",
         1,
         {"failed behaviour.output"},
         "doOperation, ordinary settings: prints \"$line\\n\""},
        {"LeaksMemory", 1, {"failed behaviour.memory"}, "doOperation: 655"},
        {"LeaksClone", 1, {"failed behaviour.memory"}, "clone: "},
    };
}

QList<Animal> inputAnimals()
{
    return {
        {"EmptiesResult",
         1,
         {"failed behaviour.resultAsOperand"},
         "text = \"$result\", a result variable of type string that is \"One, two\": gives \"\""},
        {"CachesByLength",
         1,
         {"failed behaviour.order"},
         "text = \"a\": gives something else when other steps ran before"},
        {"WritesOther",
         1,
         {"failed behaviour.writes"},
         "ordinary settings: writes zooLast besides its result variable"},
        {"WritesBesideResult",
         1,
         {"failed behaviour.writes"},
         "ordinary settings: writes result_ok besides its result variable"},
    };
}

/// Faults in how operands are read, which are looked for on request only.
QList<Animal> operandAnimals()
{
    const QStringList options{"--operands"};
    return {
        {"RendersTightly",
         1,
         {"failed operands.lists"},
         "text = \"$list\": gives \"a,1,2.5,true,1,b,2.5\"; expected \"a, 1, 2.5, true, 1, b, 2.5\"",
         options},
        {"KeepsNumerals",
         1,
         {"failed operands.numbers"},
         "text = \"007\": gives \"007\"; expected \"7\", as with text = \"$seven\"",
         options},
        {"KnowsNoCount",
         1,
         {"failed operands.members"},
         "text = \"$list.Count\": gives \"\"; expected \"5\"",
         options},
        {"TrimsNames",
         1,
         {"failed operands.references"},
         "text = \"$line \": gives \" One, two, 3: four-five. \"; expected \"\"",
         options},
    };
}

} // namespace

QList<Animal> behaviourAnimals()
{
    return runningAnimals() + copyingAnimals() + recordAnimals() + processAnimals() +
           inputAnimals() + operandAnimals();
}
