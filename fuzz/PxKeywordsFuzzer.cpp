#include "PxFuzzedDirectory.h"

#include <values/PxBinding.h>
#include <values/PxJigType.h>
#include <values/PxPageTypeList.h>
#include <values/PxPaperType.h>
#include <values/PxSpaceMagnitude.h>

#include <EnumHelper.h>
#include <PxListParts.h>
#include <PxOrientation.h>
#include <PxProductGroup.h>

/** A value that is written and read again is the same, unless there was nothing to write. */
template <typename Wrapper>
static void readTwice(const QString &keywords)
{
    const Wrapper first(keywords);
    const QString written = first.encodeCSV();
    if (!written.isEmpty() && first.isValid() && Wrapper(written) != first)
        qFatal("written back otherwise: %s", qPrintable(written));
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    PxFuzzedDirectory::withFile("none");
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), int(size));
    readTwice<PxBinding>(text);
    readTwice<PxOrientation>(text);
    readTwice<PxPageType>(text);
    readTwice<PxPaperType>(text);
    readTwice<PxSpaceMagnitude>(text);
    PxBinding(text).humanReadableName();
    PxBinding::createFromHumanReadable(text);
    PxJigType(text).encodeCSV();
    PxPageTypeList(text).size();
    PxProductGroup(text).isValid();
    EnumHelper::decodePageAlignmentAsList(text);
    EnumHelper::decodeKeywordList(text, EnumHelper::globalMapPageNamingStyleString,
                                  EnumHelper::globalPageNamingStyleDefaultValue);
    pxIntList(text);
    return 0;
}
