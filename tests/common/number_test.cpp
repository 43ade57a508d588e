#include "common/number.h"

#include <gtest/gtest.h>

#include <clocale>
#include <limits>

namespace common {
namespace {

TEST(Val, TakesTheNumericPrefix) {
  const struct {
    const char* text;
    double value;
  } rows[] = {{"", 0},       {"1/2", 1},     {"1 2", 12},   {"1,234", 1},   {" -3.5x", -3.5},
              {"+2", 2},     {".5", 0.5},    {"-.5", -0.5}, {"5.", 5},      {"1.2.3", 1.2},
              {"1e3", 1000}, {"1D-2", 0.01}, {"2e", 2},     {"2e+", 2},     {"abc", 0},
              {"-", 0},      {"e5", 0},      {"１２", 0},   {"1e-400", 0},  {"3kPa", 3},
              {"--1", 0},    {"1-2", 1},     {"&H10", 0},   {"1e 3", 1000}, {"0x10", 0},
              {"+-5", 0},    {"inf", 0},     {"-nan", 0},   {"1d2e3", 100}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.text);
    EXPECT_EQ(static_cast<double>(Val(row.text)), row.value);
  }
  EXPECT_THROW(Val("1e400"), RuntimeFault);
}

TEST(WholeNumber, IsNothingButANumber) {
  for (const char* text : {" 1.5", "-.5 ", "5.", "+2e-3", "1D2", "1e-400"}) {
    EXPECT_EQ(WholeNumber(text), Val(text)) << text;
  }
  for (const char* text : {"", " ", "-", ".", "1 2", "1-2", "1e", "1e+", "3kPa", "inf", "1e400"}) {
    EXPECT_FALSE(WholeNumber(text)) << text;
  }
}

TEST(Val, DoesNotDependOnTheLocale) {
  if (std::setlocale(LC_ALL, "de_DE.UTF-8") == nullptr) std::setlocale(LC_ALL, "");
  EXPECT_EQ(static_cast<double>(Val("0.5")), 0.5);
  EXPECT_EQ(NumberText(0.5), "0.5");
  EXPECT_EQ(Format(1234.5, "#,##0.0"), "1,234.5");
  std::setlocale(LC_ALL, "C");
}

TEST(NumberText, HasFifteenDigits) {
  const struct {
    double value;
    const char* text;
  } rows[] = {{0, "0"},
              {-0.0, "0"},
              {0.1 + 0.2, "0.3"},
              {100 * 0.07, "7"},
              {1.0 / 3, "0.333333333333333"},
              {123456789012345678.0, "1.23456789012346E+17"},
              {0.0001, "0.0001"},
              {0.00001, "1E-05"},
              {-1234.5, "-1234.5"},
              {-std::numeric_limits<double>::max(), "-1.79769313486231E+308"}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.text);
    EXPECT_EQ(NumberText(row.value), row.text);
    EXPECT_NO_THROW(Val(NumberText(row.value)));
  }
  EXPECT_EQ(SpacedNumberText(0.5), " .5");
  EXPECT_EQ(SpacedNumberText(-0.5), "-.5");
  EXPECT_EQ(SpacedNumberText(100), " 100");
  EXPECT_EQ(SpacedNumberText(0), " 0");
  EXPECT_EQ(SingleText(114.3F), "114.3");
}

TEST(Format, FollowsThePattern) {
  const struct {
    double value;
    const char* pattern;
    const char* text;
  } rows[] = {{2, "##0.###", "2."},
              {0.5, "0.####", "0.5"},
              {0.5, "#.##", ".5"},
              {1234567.891, "###,##0.00", "1,234,567.89"},
              {999.995, "##0.00", "1000.00"},
              {1.005, "0.00", "1.01"},  // half of the 15-digit value, not of the binary one
              {-1.5, "0", "-2"},
              {2.5, "0", "3"},
              {-0.001, "0.00", "0.00"},
              {0, "#,###", ""},
              {0, "###,###,###,##0", "0"},
              {70735.54, "###,###,###,##0", "70,736"},
              {0.00049999999999999999, "0.000", "0.001"},  // 0.0005 in 15 digits
              {12, "0.000", "12.000"},
              {1e15, "###,###,##0", "1,000,000,000,000,000"},
              {7, "00", "07"},
              {1e-30, "0.00", "0.00"}};
  for (const auto& row : rows) {
    SCOPED_TRACE(std::string(row.pattern) + " of " + NumberText(row.value));
    EXPECT_EQ(Format(row.value, row.pattern), row.text);
  }
}

TEST(RoundDigits, RoundsHalfUpwards) {
  const struct {
    double value;
    int digits;
    double rounded;
  } rows[] = {{-2.5, 0, -2},    {2.5, 0, 3},        {1234, -2, 1200},  {1250, -2, 1300},
              {0.125, 2, 0.13}, {-0.125, 2, -0.12}, {9912.4, -1, 9910}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.value);
    EXPECT_EQ(static_cast<double>(RoundDigits(row.value, row.digits)), row.rounded);
  }
}

TEST(Helpers, AreTheStraightFormulas) {
  EXPECT_EQ(static_cast<double>(Interpolate(10, 20, 1, 1.5, 2)), 15);
  EXPECT_EQ(static_cast<double>(Interpolate(10, 20, 1, 3, 2)), 30);
  EXPECT_THROW(Interpolate(10, 20, 1, 1.5, 1), RuntimeFault);
  EXPECT_EQ(static_cast<double>(ScaleFlowSquared(100, 1, 2)), 25);
  // 20 000 kg/h of water at 1 cP in 100 mm: 4 m / (pi D mu) = 70 736.
  EXPECT_NEAR(static_cast<double>(ReynoldsNumber(20000, 100, 1)), 70735.53, 0.05);
}

}  // namespace
}  // namespace common
