// A picture of pictures: what the codes of a layout mean in this host, graph by graph.
#pragma once

#include <string>

namespace plot {

std::string SamplesSvg();

}  // namespace plot
