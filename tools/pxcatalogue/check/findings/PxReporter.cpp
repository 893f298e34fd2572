#include "check/findings/PxReporter.h"

#include "check/PxCheckLimits.h"

namespace {

/** Inserts all arguments at once, because a text from a file may itself contain "%1". */
QString filled(const QString &text, const QStringList &arguments)
{
    QString filled;
    int begin = 0;
    for (int percent = text.indexOf('%'); percent >= 0; percent = text.indexOf('%', begin)) {
        const int index = text.midRef(percent + 1, 1).toInt();
        const bool isPlace = index > 0 && index <= arguments.size();
        filled += text.midRef(begin, percent - begin);
        filled += isPlace ? arguments[index - 1] : QString('%');
        begin = percent + (isPlace ? 2 : 1);
    }
    return filled + text.midRef(begin);
}

} // namespace

void PxAddedFinding::setText(Member member, const QString &text, const QStringList &arguments)
{
    const QString whole = arguments.isEmpty() ? text : filled(text, arguments);
    m_finding->*member = whole.size() <= PxCheckLimits::messageLength
                             ? whole
                             : whole.left(PxCheckLimits::messageLength) + "…";
}

/** A message gets a mark instead of the place, because lines and paths change from run to run. */
QString PxAddedFinding::textOf(const PxPlace &place, Member member)
{
    if (m_finding->related.path.isEmpty())
        m_finding->related = place;
    return member == &PxFinding::message ? QString(PxFinding::relatedMark)
                                         : place.seenFrom(m_finding->place.path);
}
