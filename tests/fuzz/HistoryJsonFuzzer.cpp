// The stored colour history as read from the settings file: whatever decodes must write back
// and read again to the very same records and the very same bytes.
#include "FuzzCheck.h"

#include "model/PickedColor.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray json(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const std::optional<QList<PickedColor>> colors = decodeColorHistory(json);
    if (!colors)
        return 0;
    // Decoding admits only finite numbers, so every decoded history can be written.
    const std::optional<QByteArray> written = encodeColorHistory(*colors);
    FUZZ_CHECK(written.has_value());
    const std::optional<QList<PickedColor>> readBack = decodeColorHistory(*written);
    FUZZ_CHECK(readBack.has_value());
    FUZZ_CHECK(*readBack == *colors);
    FUZZ_CHECK(encodeColorHistory(*readBack) == written);
    return 0;
}
