#pragma once

#include <string>
#include <string_view>

namespace orlamo {

/// A system shortcut's "Category//Name" or "Category//Subgroup//Name" taken apart.
struct SystemTitle {
    std::string path;   // "Category" or "Category/Subgroup"
    std::string label;  // the key of the localized name
};

/// The name is the second of two parts, else the third. Without "//" the whole title is the label, under its own name.
SystemTitle splitSystemTitle(std::string_view title);

}  // namespace orlamo
