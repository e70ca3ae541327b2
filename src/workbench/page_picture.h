#pragma once

#include <ctime>
#include <vector>

#include "pictures/picture.h"
#include "pictures/text_measure.h"
#include "workbench/pages.h"

namespace kov {

/// What a picture of a graph page, graph1 or graph2, says about its origin: a title, the data file where
/// there is one, the current range table, the time, the parameters that such a page is drawn by.
std::vector<Note> picture_notes(const Workbench& workbench, Page page, std::time_t time);

/// Shows a graph page at this size and gives its picture, notes included: what is saved or copied.
Picture page_picture(Workbench& workbench, Pages& pages, Page page, int width, int height,
                     const TextMeasure& measure);

}  // namespace kov
