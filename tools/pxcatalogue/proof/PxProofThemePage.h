#pragma once

#include <QByteArray>

struct PxProofCatalogue;
struct PxProofTheme;

/** The page of a theme. */
class PxProofThemePage
{
public:
    static QByteArray page(const PxProofCatalogue &catalogue, const PxProofTheme &theme);
};
