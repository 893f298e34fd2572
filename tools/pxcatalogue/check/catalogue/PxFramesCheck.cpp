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
    const PxElementRow &row = *PxFormat::find(PxFileKind::Frames, QStringLiteral("frame"));
    QMap<QString, const PxSourceElement *> frames; // by id
    for (const PxSourceElement *frame :
         m_report.file().root()->childrenNamed(QStringLiteral("frame"))) {
        const QString id = frame->value(QStringLiteral("id"));
        const QString missing = id.isEmpty() ? QStringLiteral("id") : QStringLiteral("name");
        const PxSourceRange range = frame->rangeOf(QStringLiteral("id"));
        if (frame->value(missing).isEmpty()) {
            const PxMissingPart part = PxElementReading(*frame, row).missing(missing);
            m_report
                .add(PxTag::FrameIncomplete, part.range,
                     QStringLiteral("the frame has no \"%1\"").arg(missing))
                .now(id.isEmpty() ? QStringLiteral("it is left out")
                                  : QStringLiteral("it is shown as \"%1\"").arg(id))
                .hint(part.hint);
            continue;
        }
        const PxSourceElement *&known = frames[id];
        if (known)
            m_report
                .add(PxTag::FrameIdTwice, range,
                     QStringLiteral("the frame \"%1\" is in %2, too")
                         .arg(id, PxFinding::otherPlaceMark))
                .otherPlace(m_report.file().place(known->nameRange))
                .now(QStringLiteral("the later name is shown: \"%1\"")
                         .arg(frame->value(QStringLiteral("name"))));
        else if (!isAscii(id))
            m_report
                .add(PxTag::FrameIdNotAscii, range,
                     QStringLiteral("the id \"%1\" is not plain ASCII").arg(id))
                .now(QStringLiteral("it is found by exactly these letters"));
        known = frame;
    }
}
