#include <output/PxFindingsBaseline.h>

#include <cstddef>
#include <cstdint>

/** A baseline is either refused, or the same after it was written and read again. */
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const auto written = [](const QByteArray &text) {
        PxFindingsBaseline baseline;
        return baseline.readJson(text) ? QByteArray() : baseline.toJson();
    };
    const QByteArray text(reinterpret_cast<const char *>(data), int(size));
    // Half a surrogate pair is written as another character, so only later rounds must be equal.
    const QByteArray first = written(text);
    if (!first.isEmpty() && (written(first).isEmpty() || written(written(first)) != written(first)))
        qFatal("read otherwise: %s", first.constData());
    return 0;
}
