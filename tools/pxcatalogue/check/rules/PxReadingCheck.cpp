#include "check/rules/PxReadingCheck.h"

#include "check/source/PxSourceFault.h"

namespace {

const auto now = QLatin1String("the file is not read at all");

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
    const PxSourceRange range = fault.range();
    const QString name = source.text().mid(range.begin, range.end - range.begin);
    const PxSourceFault::Element *unclosed = fault.unclosed();
    if (fault.kind() == Kind::None ||
        (fault.kind() == Kind::EndMissing && !m_report.file().isSourceWhole()))
        m_report
            .add(PxTag::XmlNotWellFormed, m_report.file().faultPlace(),
                 m_report.file().fault().message)
            .now(now);
    else if (fault.kind() == Kind::AttributeTwice)
        m_report.add(PxTag::XmlAttributeTwice, range, "attribute \"%1\" is given twice", name)
            .now(now)
            .hint("keep the one that is meant");
    else if (fault.kind() == Kind::EntityUndeclared)
        m_report.add(PxTag::XmlEntityUndeclared, range, "the entity \"%1\" is not defined", name)
            .now(now)
            .hint("write the character itself");
    else
        m_report.add(PxTag::XmlNotWellFormed, range, fault.message())
            .now(now)
            .hint(unclosed ? QString("\"%1\" of line %2 is not closed")
                                 .arg(unclosed->name,
                                      QString::number(source.place(unclosed->nameRange).line))
                           : fault.hint());
}
