#include "check/source/PxCheckedFile.h"

#include "check/findings/PxCheckTags.h"
#include "check/source/PxSourceFault.h"
#include "check/words/PxSpelling.h"

#include <PxXMLLoader.h>

#include <QFile>
#include <QRegularExpression>
#include <QTextCodec>

#include <limits>

namespace {

constexpr int maximumAllowance = 500; // letters of a comment: then it has named its tag

/** The text up to a place and some more, so that a fault at that place can be seen. */
QString textUpTo(const QString &text, qint64 line, qint64 column)
{
    constexpr int more = 1024;
    int lineBegin = 0;
    for (; line > 1 && lineBegin >= 0; --line)
        lineBegin = text.indexOf(QLatin1Char('\n'), lineBegin) + 1;
    return text.left(int(qMin<qint64>(lineBegin + column + more, text.size())));
}

} // namespace

PxCheckedFile::PxCheckedFile(const QString &path) : m_path(path)
{
    m_document = PxXMLLoader::loadDocument(QFileInfo(path), m_fault);
    readSource();
    if (isRead() && !m_source->connectTo(m_document.documentElement())) {
        m_fault.kind = PxXMLFault::Kind::Unreadable;
        m_fault.message = QStringLiteral("the file changes while it is read");
    }
}

void PxCheckedFile::readSource()
{
    QString text;
    QFile file(m_path);
    // Where the library gives up without a place, there is no text, or too much of it.
    if ((isRead() || hasFaultPlace()) && file.open(QIODevice::ReadOnly)) {
        if (const QTextCodec *codec = QTextCodec::codecForName(m_fault.encoding.toLatin1()))
            text = codec->toUnicode(file.read(file.size()));
        if (text.startsWith(QChar::ByteOrderMark))
            text.remove(0, 1);
        // Behind a limit, reading on could take very long.
        const int size = text.size();
        if (!isRead())
            text = textUpTo(text, m_fault.line, m_fault.column);
        m_isWhole = text.size() == size;
    }
    m_source = std::make_unique<PxSourceDocument>(text);
}

PxPlace PxCheckedFile::faultPlace() const
{
    const int line = qMax(1, int(m_fault.line));
    const int column = qMax(1, int(m_fault.column));
    PxPlace place{QString(), line, column, line, column};
    if (!m_source->text().isEmpty())
        place = m_source->place(line, column);
    place.path = m_path;
    return place;
}

PxPlace PxCheckedFile::place(const PxSourceRange &range) const
{
    PxPlace place = m_source->place(range);
    place.path = m_path;
    return place;
}

void PxCheckedFile::add(PxFindings *findings, const char *tag, const PxSourceRange &range,
                        const QString &message, const QString &now, const QString &hint) const
{
    findings->add(tag, place(range), message, now, hint);
}

void PxCheckedFile::checkReading(PxFindings *findings) const
{
    if (isRead())
        return;
    const QString now = QStringLiteral("the file is not read at all");
    if (m_fault.kind == PxXMLFault::Kind::Encoding)
        findings->add("xml-encoding-damaged", faultPlace(), m_fault.message, now,
                      QStringLiteral("save the file as UTF-8, or declare its encoding"));
    else if (m_fault.kind == PxXMLFault::Kind::Limit)
        findings->add("xml-limit-exceeded", faultPlace(), m_fault.message, now);
    else if (m_fault.kind == PxXMLFault::Kind::NotWellFormed)
        addFault(findings, now);
    else
        findings->add("file-unreadable", faultPlace(), m_fault.message, now);
}

void PxCheckedFile::addFault(PxFindings *findings, const QString &now) const
{
    using Kind = PxSourceFault::Kind;
    const PxSourceFault fault(m_source->text());
    const PxSourceRange range = fault.range();
    const QString name = m_source->text().mid(range.begin, range.end - range.begin);
    if (fault.kind() == Kind::None || (fault.kind() == Kind::EndMissing && !m_isWhole)) {
        findings->add("xml-not-well-formed", faultPlace(), m_fault.message, now);
    } else if (fault.kind() == Kind::AttributeTwice) {
        add(findings, "xml-attribute-twice", range,
            QStringLiteral("attribute \"%1\" is given twice").arg(name), now,
            QStringLiteral("keep the one that is meant"));
    } else if (fault.kind() == Kind::EntityUndeclared) {
        add(findings, "xml-entity-undeclared", range,
            QStringLiteral("the entity \"%1\" is not defined").arg(name), now,
            QStringLiteral("write the character itself"));
    } else {
        const PxSourceFault::Element *unclosed = fault.unclosed();
        add(findings, "xml-not-well-formed", range, fault.message(), now,
            unclosed ? QStringLiteral("\"%1\" of line %2 is not closed")
                           .arg(unclosed->name,
                                QString::number(m_source->place(unclosed->nameRange).line))
                     : fault.hint());
    }
}

void PxCheckedFile::findAllowances(PxFindings *findings, bool isChecked) const
{
    // What cannot be read is not checked, so that every allowance in it would seem to be unused.
    if (!root())
        return;
    // What looks like an allowance is a finding, which a later comment may allow.
    QVector<PxSourceNode> others =
        findAllowances(m_source->prolog(), {m_source->root()}, findings, isChecked);
    m_source->forEachElement([&](const PxSourceElement &element) {
        others += findAllowances(element.nodes, element.children, findings, isChecked);
    });
    for (const PxSourceNode &node : qAsConst(others))
        checkNoAllowance(node, findings);
}

/**
 * Each node with the first of the elements behind it; both stand in their order. Answers the
 * comments and instructions that are no allowance.
 */
QVector<PxSourceNode> PxCheckedFile::findAllowances(
    const QVector<PxSourceNode> &nodes, const QVector<const PxSourceElement *> &elements,
    PxFindings *findings, bool isChecked) const
{
    static const QRegularExpression ourAllowance(
        QStringLiteral("^\\s*check:\\s*allow(?:\\s+(\\S+)|\\s*$)"),
        QRegularExpression::CaseInsensitiveOption);
    QVector<PxSourceNode> others;
    auto element = elements.begin();
    for (const PxSourceNode &node : nodes) {
        if (node.isText())
            continue;
        const QRegularExpressionMatch allowance =
            ourAllowance.match(node.text.left(maximumAllowance));
        if (!allowance.hasMatch()) {
            others.append(node);
            continue;
        }
        while (element != elements.end() && (*element)->range.begin < node.range.end)
            ++element;
        PxPlace part = place(element == elements.end() ? node.range : (*element)->range);
        if (element != elements.end() && *element == m_source->root()) {
            part.line = part.column = 1; // with what stands around the document element
            part.endLine = std::numeric_limits<int>::max();
        }
        findings->allow(allowance.captured(1), place(node.range), part, isChecked);
    }
    return others;
}

/** A comment that names a tag in nearly the words that allow it. */
void PxCheckedFile::checkNoAllowance(const PxSourceNode &node, PxFindings *findings) const
{
    static const QRegularExpression ourWords(
        QStringLiteral("^\\s*check\\s*:?\\s*([a-z]+)\\s*:?\\s+(\\S+)"),
        QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch words = ourWords.match(node.text.left(maximumAllowance));
    const QString tag = words.captured(2);
    if (!words.hasMatch() || !PxCheckTags::find(tag) ||
        PxSpelling::nearest(words.captured(1), {QStringLiteral("allow")}).isEmpty())
        return;
    add(findings, "allowance-unused", node.range,
        QStringLiteral("the comment names \"%1\", but does not allow it").arg(tag),
        QStringLiteral("the comment silences nothing"),
        QStringLiteral("write \"check: allow %1\"").arg(tag));
}
