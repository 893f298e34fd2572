#include "PxCheckedSample.h"

#include <QRegularExpression>

PxProgramRun PxCheckedSample::check(const QString &options) const
{
    return PxProgramRun(PX_CATALOGUE_PROGRAM,
                        QStringList("check") + options.split(' ', Qt::SkipEmptyParts),
                        {{"PX_RESOURCE_DIRS", QString()}});
}

void PxCheckedSample::addFindings() const
{
    write("products/pendant.xml",
          QStringLiteral("\uFEFF<!-- ü -->\r\n<p>\r\n\t<a n='\U0001F600ü>'\tm=\"1\"\r\n"
                         "   ö='\U0001F600' ö=''/></p>"));
    replace(cup, size, comment + size);
    write("products/cup3.xml.b\u009B", QString());
}

QStringList findingsOf(const PxProgramRun &text)
{
    static const QRegularExpression ourFinding("^(\\S+:\\d+:\\d+): (\\w+): .* \\[(\\S+)\\]$");
    QStringList findings;
    for (const QString &line : text.output()) {
        const QRegularExpressionMatch finding = ourFinding.match(line);
        if (finding.hasMatch())
            findings.append(finding.capturedTexts().mid(1).join(' '));
    }
    return findings;
}
