#include <gtest/gtest.h>

#include "shared/numeros.h"

namespace {

TEST(Numeros, positions_are_whole_and_clamped_to_16_bits) {
  const std::vector<std::pair<const char*, std::optional<std::int16_t>>> casos{
      {"615", 615},     {" -20 ", -20},     {"+7", 7},
      {"32768", 32767}, {"-99999", -32768}, {"99999999999999999999", 32767},
      {"", {}},         {"abc", {}},        {"12x", {}},
      {"99999x", {}},   {"1,5", {}},        {"- 5", {}},
      {"+-5", {}}};
  for (const auto& [texto, numero] : casos) EXPECT_EQ(Numeros::Entero16(texto), numero) << texto;
}

TEST(Numeros, colours_are_signed_and_have_32_bits) {
  const std::vector<std::pair<const char*, std::optional<std::int32_t>>> casos{
      {"16777215", 16777215},
      {"-2147483643", -2147483643},
      {"0", 0},
      {"2147483648", {}},
      {"VbBlack", {}},
      {"Inicial", {}}};
  for (const auto& [texto, numero] : casos) EXPECT_EQ(Numeros::Color(texto), numero) << texto;
}

TEST(Numeros, font_sizes_are_read_with_comma_and_point) {
  const std::vector<std::pair<const char*, std::optional<double>>> casos{
      {"10", 10}, {"9,75", 9.75}, {"9.75", 9.75}, {" 8,25 ", 8.25}, {"0", {}},    {"-9", {}},
      {"", {}},   {"diez", {}},   {"1e3", {}},    {"inf", {}},      {"9,7,5", {}}};
  for (const auto& [texto, numero] : casos) EXPECT_EQ(Numeros::Puntos(texto), numero) << texto;
}

TEST(Numeros, a_total_is_the_integer_part_at_the_start) {
  const std::vector<std::pair<const char*, int>> casos{
      {"3", 3},         {" 12 carpetas", 12}, {"2,9", 2}, {"2.9x", 2}, {"-0,5", -1}, {"-4", -4},
      {"32767", 32767}, {"32768", 0},         {"", 0},    {"tres", 0}, {"inf", 0},   {"1e9", 1}};
  for (const auto& [texto, numero] : casos) EXPECT_EQ(Numeros::Total(texto), numero) << texto;
}

}  // namespace
