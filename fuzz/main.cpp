#include "Fuzzing.h"

#include <cstddef>
#include <cstdint>

// The name and the types are libFuzzer's.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    fuzz(QByteArrayView(data, static_cast<qsizetype>(size)));
    return 0;
}
