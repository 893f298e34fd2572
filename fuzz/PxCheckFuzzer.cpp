#include "PxFuzzedDirectory.h"

#include "check/catalogue/PxCheck.h"
#include "check/source/PxCheckedFile.h"
#include "output/PxFindingsBaseline.h"
#include "output/PxFindingsSarif.h"
#include "output/PxFindingsText.h"

#include <cstdio>
#include <cstdlib>

namespace {

/** Checks the file alone, as the kind of file that its document element names. */
PxCheckPaths pathsOf(const PxCheckedFile &file)
{
    PxCheckPaths paths;
    const QString root = file.source().root() ? file.source().root()->name.toLower() : QString();
    if (root == QLatin1String("themes"))
        paths.themes.append(file.path());
    else if (root == QLatin1String("producttypes"))
        paths.productTypes = file.path();
    else if (root == QLatin1String("frames"))
        paths.frames = file.path();
    else if (root == QLatin1String("userdefaults"))
        paths.userDefaults.append(file.path());
    else
        paths.products.append(file.path());
    return paths;
}

/** Ends the program with a message, without the message handler, which ignores everything. */
template <typename... Arguments>
[[noreturn]] void fail(const char *format, Arguments... arguments)
{
    std::fprintf(stderr, format, arguments...);
    std::abort();
}

bool isInside(const PxPlace &place, const PxSourceDocument &source)
{
    const auto isIn = [&source](int line, int column) {
        return line >= 1 && column >= 1 && column <= source.line(line).toUcs4().size() + 1;
    };
    return isIn(place.line, place.column) && isIn(place.endLine, place.endColumn) &&
           (place.line < place.endLine ||
            (place.line == place.endLine && place.column <= place.endColumn));
}

void checkPlaces(const PxCheckReport &report, const PxCheckedFile &file)
{
    for (const PxFinding &finding : report.findings) {
        // A file that cannot be read at all has no text.
        if (finding.place.path == file.path() && !file.source().text().isEmpty() &&
            !isInside(finding.place, file.source()))
            fail("%s at %d:%d to %d:%d is outside of the file\n", finding.tag->name,
                 finding.place.line, finding.place.column, finding.place.endLine,
                 finding.place.endColumn);
    }
}

void checkBaseline(PxCheckReport report)
{
    int count = 0;
    for (const PxFinding &finding : qAsConst(report.findings))
        count += finding.count();
    PxFindingsBaseline(report).hide(&report);
    if (!report.findings.isEmpty() || report.knownCount != count)
        fail("the baseline hides %d of %d findings\n", report.knownCount, count);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString path =
        PxFuzzedDirectory::withFile("checked.xml").write(data, size).absoluteFilePath();
    const PxCheckedFile file(path);
    PxFindingSettings settings;
    settings.isPedantic = true;
    PxFindings findings(settings);
    PxCheck check(pathsOf(file), findings);
    check.run();
    PxCheckReport report;
    report.findings = findings.sorted();
    report.fileCount = check.fileCount();
    checkPlaces(report, file);
    PxFindingsText::of(report, {}); // with the lines of the file
    PxFindingsSarif::of(report);
    checkBaseline(report);
    return 0;
}
