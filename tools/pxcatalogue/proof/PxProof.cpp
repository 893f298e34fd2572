#include "proof/PxProof.h"

#include "proof/PxParallelJobs.h"
#include "proof/PxProofCatalogue.h"
#include "proof/PxProofDrawings.h"
#include "proof/PxProofFolder.h"
#include "proof/PxProofIndex.h"
#include "proof/PxProofProductPage.h"
#include "proof/PxProofThemePage.h"
#include "writing/PxProgress.h"

#include <QBuffer>
#include <QFile>
#include <QImage>

namespace {

constexpr int largestPicture = 480; // pixels

/** The style sheet and the script, which stand in the program. */
std::optional<PxProblem> writeResource(const char *name, const PxProofFolder &folder)
{
    QFile file(QString(":/proof/") + name);
    file.open(QIODevice::ReadOnly);
    return folder.write(name, file.readAll());
}

std::optional<PxProblem> writeProduct(const PxProofCatalogue &catalogue,
                                      const PxProofProduct &product, const PxProofFolder &folder)
{
    if (auto problem =
            folder.write(product.page + ".html", PxProofProductPage::page(catalogue, product)))
        return problem;
    const QByteArray small = PxProofDrawings::small(product);
    return small.isEmpty() ? std::nullopt
                           : folder.write("drawings/" + product.page + ".svg", small);
}

std::optional<PxProblem> writeTheme(const PxProofCatalogue &catalogue, const PxProofTheme &theme,
                                    const PxProofFolder &folder)
{
    if (auto problem = folder.write(theme.page + ".html", PxProofThemePage::page(catalogue, theme)))
        return problem;
    if (!theme.hasPicture)
        return std::nullopt;
    QImage picture = theme.theme.thumbnail();
    if (picture.width() > largestPicture || picture.height() > largestPicture)
        picture = picture.scaled(largestPicture, largestPicture, Qt::KeepAspectRatio,
                                 Qt::SmoothTransformation);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "PNG");
    return folder.write("drawings/" + theme.page + ".png", buffer.data());
}

} // namespace

std::optional<PxProblem> PxProof::write(const PxProofCatalogue &catalogue,
                                        const PxProofFolder &folder)
{
    for (const char *name : {"proof.css", "proof.js"}) {
        if (auto problem = writeResource(name, folder))
            return problem;
    }
    std::vector<PxParallelJobs::Job> jobs;
    for (const auto *products : {&catalogue.products, &catalogue.legacyProducts}) {
        for (const PxProofProduct &product : *products)
            jobs.push_back([&] { return writeProduct(catalogue, product, folder); });
    }
    for (const PxProofTheme &theme : catalogue.themes)
        jobs.push_back([&] { return writeTheme(catalogue, theme, folder); });
    PxProgress progress(int(jobs.size()), "pages");
    if (auto problem = PxParallelJobs::run(jobs, &progress))
        return problem;
    // The index shows the drawings that could be made.
    if (auto problem = folder.write("index.html", PxProofIndex::page(catalogue, folder)))
        return problem;
    return folder.write("catalogue.json", catalogue.exported);
}
