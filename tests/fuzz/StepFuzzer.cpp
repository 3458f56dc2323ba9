#include "tests/fuzz/FuzzTarget.h"
#include "tests/fuzz/StepCheck.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size)
{
    return runFuzzTarget(checkStep, bytes, size);
}
