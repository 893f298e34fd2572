#include "PxXMLPlainReader.h"
#include "PxXMLStrictReader.h"

#include <cstdint>

/** For every text that the plain reader accepts, the strict reader builds the same tree. */
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const char *text = reinterpret_cast<const char *>(data);
    static PxXMLTextPool ourTexts; // as a thread that loads file after file has them
    const QDomDocument document = PxXMLPlainReader({text, size}, ourTexts).read();
    PxXMLStrictReader strict(QByteArray(text, int(size)));
    const bool isRefused = strict.read().kind != PxXMLFault::Kind::None;
    if (!document.isNull() && (isRefused || document.toString() != strict.document().toString()))
        qFatal("the readers disagree");
    return 0;
}
