#include "proof/PxProofPage.h"

#include "proof/PxProofCatalogue.h"
#include "proof/PxProofWords.h"

namespace {

/** The folder's own files and nothing else: no text of a file could ever run or load anything. */
constexpr const char *policy = "default-src 'none'; img-src 'self'; style-src 'self'; "
                               "script-src 'self'; base-uri 'none'; form-action 'none'";

} // namespace

PxProofPage::PxProofPage(const PxProofCatalogue &catalogue, const QString &heading)
{
    m_html.open("html", {{"lang", PxProofWords::language()}});
    writeHead(heading == catalogue.title ? heading : heading + " - " + catalogue.title);
    m_html.open("body");
    m_html.element("a", PxProofWords::tr("Zum Inhalt"), {{"class", "skip"}, {"href", "#content"}});
    m_html.open("header", {{"class", "top"}});
    m_html.open("nav", {{"aria-label", PxProofWords::tr("Katalog")}});
    m_html.element("strong", catalogue.title);
    m_html.element("a", PxProofWords::tr("Produkte"), {{"href", "index.html"}});
    if (!catalogue.legacyProducts.isEmpty())
        m_html.element("a", PxProofWords::tr("Frühere Produkte"), {{"href", "index.html#earlier"}});
    if (!catalogue.themes.isEmpty())
        m_html.element("a", PxProofWords::tr("Themen"), {{"href", "index.html#themes"}});
    m_html.close();
    m_html.close();
    m_html.open("main", {{"id", "content"}});
    m_html.element("h1", heading);
}

void PxProofPage::writeHead(const QString &title)
{
    m_html.open("head");
    m_html.single("meta", {{"charset", "utf-8"}});
    m_html.single("meta", {{"http-equiv", "Content-Security-Policy"}, {"content", policy}});
    m_html.single("meta",
                  {{"name", "viewport"}, {"content", "width=device-width, initial-scale=1"}});
    m_html.element("title", title);
    m_html.single("link", {{"rel", "stylesheet"}, {"href", "proof.css"}});
    m_html.element("script", QString(), {{"src", "proof.js"}, {"defer", "defer"}});
    m_html.close();
}

void PxProofPage::addHeading(const QString &text, const QString &id)
{
    m_html.element("h2", text, {{"id", id}});
}

QByteArray PxProofPage::finished()
{
    m_html.close(); // main
    m_html.close(); // body
    m_html.close(); // html
    return m_html.document();
}
