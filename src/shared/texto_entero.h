// A whole text where it lies: a copy of it might be more than the memory holds.
#pragma once

#include <memory>
#include <string_view>
#include <vector>

struct TextoEntero {
  std::vector<std::string_view> tramos;  // in their order
  std::shared_ptr<const void> memoria;   // keeps them
};
