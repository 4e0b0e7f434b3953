#include <charconv>

char* write(char* first, char* last, double number) {
  return std::to_chars(first, last, number).ptr;
}
