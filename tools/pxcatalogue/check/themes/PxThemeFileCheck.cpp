#include "check/themes/PxThemeFileCheck.h"

#include "check/themes/PxThemeElementCheck.h"
#include "check/themes/PxThemeImageCheck.h"

void PxThemeFileCheck::run()
{
    const PxSourceElement &root = *m_report.file().root();
    checkStrayNodes(root);
    for (const PxSourceElement *theme : root.children) // whatever they are called
        PxThemeElementCheck(*theme, m_types, m_report).run();
    PxThemeImageCheck(m_images, m_report).run();
}

void PxThemeFileCheck::checkStrayNodes(const PxSourceElement &root) const
{
    for (const PxSourceNode &node : root.nodes) {
        if (node.isBlank())
            continue;
        m_report
            .add(PxTag::ThemeStrayNode, node.range, "%1 directly in \"%2\"",
                 PxSourceNode::kindText(node.kind), root.name)
            .now("it becomes a theme \"unbekannt\" that has expired")
            .hint("move it into a theme, or above \"%1\"", root.name);
    }
}
