#pragma once

#include "writing/PxHtml.h"

struct PxProofCatalogue;

/** A page of the proof: what all pages have around their contents. */
class PxProofPage
{
public:
    /** Opens the page: its title, the links to the tables, and the heading. */
    PxProofPage(const PxProofCatalogue &catalogue, const QString &heading);

    PxHtml &html() { return m_html; }
    /** A heading of second order. */
    void addHeading(const QString &text, const QString &id = QString());
    /** Closes the page. Call it once. */
    QByteArray finished();

private:
    void writeHead(const QString &title);

    PxHtml m_html;
};
