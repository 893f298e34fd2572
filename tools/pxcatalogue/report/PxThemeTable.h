#pragma once

#include <themes/PxThemeList.h>

class PxReport;

/** Themes below each other, with who may order them and what they allow. */
class PxThemeTable
{
public:
    explicit PxThemeTable(const PxThemeList &themes);

    void addTo(PxReport *report) const;

private:
    PxThemeList m_themes; // by id; of themes of one id the first one read stays the first
};
