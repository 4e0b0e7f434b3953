#include <format>
#include <string>

std::string widthText(double width) {
  return std::format("{}", width);
}
