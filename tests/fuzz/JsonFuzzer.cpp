#include "tests/fuzz/FuzzTarget.h"
#include "tests/fuzz/JsonCheck.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size)
{
    return runFuzzTarget(checkJson, bytes, size);
}
