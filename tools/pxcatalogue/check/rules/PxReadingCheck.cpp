#include "check/rules/PxReadingCheck.h"

#include "check/source/PxSourceFault.h"
#include "check/words/PxMessageText.h"

#include <QRegularExpression>
#include <QTextCodec>

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
        checkLetters();
        break;
    case PxXMLFault::Kind::Unreadable:
        m_report.add(PxTag::FileUnreadable, m_report.file().faultPlace(), fault.message).now(now);
        break;
    case PxXMLFault::Kind::Encoding:
        m_report.add(PxTag::XmlEncodingDamaged, m_report.file().faultPlace(), fault.message)
            .now(now)
            .hint(fault.encoding.isEmpty()
                      ? "declare the encoding that the file is saved in, best UTF-8"
                      : "save the file as UTF-8, or declare its encoding");
        break;
    case PxXMLFault::Kind::Limit:
        m_report.add(PxTag::XmlLimitExceeded, m_report.file().faultPlace(), fault.message).now(now);
        break;
    case PxXMLFault::Kind::NotWellFormed:
        checkMarkup();
        break;
    }
}

/**
 * Text in UTF-8 that was read in an encoding of one byte a letter, and saved: instead of a letter
 * with a dot or accent there are two, of which the first is always the same.
 */
void PxReadingCheck::checkLetters()
{
    static const QRegularExpression ourWord(
        "[^\\s<>\"'=,;/]*\u00C3[\u0080-\u00BF\u0153\u0178\u2013\u2026\u201A-\u201E][^\\s<>\"'=,;/"
        "]*");
    const QString text = m_report.file().source().text();
    auto words = ourWord.globalMatch(text);
    if (!words.hasNext())
        return;
    const QRegularExpressionMatch first = words.next();
    const QTextCodec *codec = QTextCodec::codecForName("windows-1252");
    const QString meant = QString::fromUtf8(codec->fromUnicode(first.captured()));
    m_report
        .add(PxTag::TextDecodedTwice, PxSourceRange{first.capturedStart(), first.capturedEnd()},
             words.hasNext() ? "\"%1\" has letters that were decoded twice, and so have others"
                             : "\"%1\" has letters that were decoded twice",
             PxMessageText::shortened(first.captured()))
        .now("all texts are used and shown as they are here")
        .hint(meant.contains(QChar::ReplacementCharacter)
                  ? QString("read the file as UTF-8, and save it as UTF-8")
                  : QString("write \"%1\": read the file as UTF-8, and save it as UTF-8")
                        .arg(PxMessageText::shortened(meant)));
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
