#include "check/rules/PxReadingCheck.h"

#include "check/source/PxSourceFault.h"

namespace {

const auto now = QLatin1String("the file is not read at all");

PxTag tagOf(PxSourceFault::Kind kind)
{
    switch (kind) {
    case PxSourceFault::Kind::AttributeTwice:
        return PxTag::XmlAttributeTwice;
    case PxSourceFault::Kind::EntityUndeclared:
        return PxTag::XmlEntityUndeclared;
    default:
        return PxTag::XmlNotWellFormed;
    }
}

} // namespace

void PxReadingCheck::run()
{
    const PxXMLFault &fault = m_report.file().fault();
    switch (fault.kind) {
    case PxXMLFault::Kind::None:
        break;
    case PxXMLFault::Kind::Unreadable:
        m_report.add(PxTag::FileUnreadable, m_report.file().faultPlace(), fault.message).now(now);
        break;
    case PxXMLFault::Kind::Encoding:
        m_report.add(PxTag::XmlEncodingDamaged, m_report.file().faultPlace(), fault.message)
            .now(now)
            .hint("save the file as UTF-8, or declare its encoding");
        break;
    case PxXMLFault::Kind::Limit:
        m_report.add(PxTag::XmlLimitExceeded, m_report.file().faultPlace(), fault.message).now(now);
        break;
    case PxXMLFault::Kind::NotWellFormed:
        checkMarkup();
        break;
    }
}

void PxReadingCheck::checkMarkup()
{
    using Kind = PxSourceFault::Kind;
    const PxSourceDocument &source = m_report.file().source();
    const PxSourceFault fault(source.text());
    if (fault.kind() == Kind::None ||
        (fault.kind() == Kind::EndMissing && !m_report.file().isSourceWhole())) {
        m_report
            .add(PxTag::XmlNotWellFormed, m_report.file().faultPlace(),
                 m_report.file().fault().message)
            .now(now);
        return;
    }
    const PxSourceFault::Element *unclosed = fault.unclosed();
    m_report.add(tagOf(fault.kind()), fault.range(), fault.message())
        .now(now)
        .hint(unclosed ? QString("\"%1\" of line %2 is not closed")
                             .arg(unclosed->name,
                                  QString::number(source.place(unclosed->nameRange).line))
                       : fault.hint());
}
