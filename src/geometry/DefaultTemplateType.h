#pragma once

/** Which of the two templates that the editor puts on a new page. */
enum DefaultTemplateType : int {
    DefaultTemplateTypeLayout = 0,     ///< where pictures and texts are
    DefaultTemplateTypeBackground = 1, ///< what is behind them
};
