#include "check/catalogue/PxFramesCheck.h"

#include "check/rules/PxElementReading.h"
#include "check/words/PxMessageText.h"
#include "format/PxFormat.h"

#include <QMap>

#include <algorithm>

namespace {

bool isAscii(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 128; });
}

} // namespace

void PxFramesCheck::run()
{
    const PxElementRow &row = *PxFormat::find(PxFileKind::Frames, "frame");
    QMap<QString, const PxSourceElement *> frames; // by id
    for (const PxSourceElement *frame : m_report.file().root()->childrenNamed("frame")) {
        const QString id = frame->value("id");
        const char *missing = id.isEmpty() ? "id" : "name";
        const PxSourceRange range = frame->rangeOf("id");
        if (frame->value(missing).isEmpty()) {
            const PxMissingPart part = PxElementReading(*frame, row).missing(missing);
            m_report.add(PxTag::FrameIncomplete, part.range, "the frame has no \"%1\"", missing)
                .now(id.isEmpty() ? "it is left out" : QString("it is shown as \"%1\"").arg(id))
                .hint(part.hint);
            continue;
        }
        const PxSourceElement *&known = frames[id];
        if (known)
            m_report
                .add(PxTag::FrameIdTwice, range, "the frame \"%1\" is in %2, too", id,
                     m_report.place(known->nameRange))
                .now("the later name is shown: \"%1\"", frame->value("name"));
        else if (!isAscii(id))
            m_report.add(PxTag::FrameIdNotAscii, range, "the id \"%1\" is not plain ASCII", id)
                .now("it is found by exactly these letters");
        known = frame;
    }
}
