#include <tuple>
#include <utility>

#include <gtest/gtest.h>

#include "examples/plot/DateTicks.h"
#include "examples/plot/Scale.h"
#include "examples/plot/Svg.h"
#include "examples/plot/Ticks.h"

namespace plot {
namespace {

using Values = std::vector<double>;

constexpr double kJanuary15 = 43845;  // 2020
constexpr double kJune15 = 43997;

TEST(Plot, StepsAreNice) {
  const std::tuple<double, double, double> rows[] = {{100, 8, 20}, {1, 10, 0.1},     {0.3, 3, 0.1}, {7, 7, 1},
                                                     {99, 10, 10}, {1e-9, 5, 2e-10}, {51, 1, 100}};
  for (const auto& [span, most, step] : rows) EXPECT_NEAR(NiceStep(span, most) / step, 1, 1e-12) << span;
}

TEST(Plot, StepsOfDatesAreCalendarSteps) {
  const std::tuple<double, double, DateStep> rows[] = {{0.0001, 9, {.seconds = 1}},     {1, 8, {.seconds = 10800}},
                                                       {7, 8, {.seconds = 86400}},      {60, 10, {.seconds = 604800}},
                                                       {365, 13, {.months = 1}},        {365, 4, {.months = 3}},
                                                       {22700, 16, {.months = 5 * 12}}, {3.6e6, 5, {.months = 24000}}};
  for (const auto& [days, most, step] : rows) EXPECT_EQ(NiceDateStep(days, most), step) << days;
  EXPECT_EQ(DateStepOf(365.25), DateStep{.months = 12});
  EXPECT_EQ(DateStepOf(0.25), DateStep{.seconds = 21600});
}

TEST(Plot, Ticks) {
  const std::pair<Values, Values> rows[] = {
      {StepTicks({-3, 11}, 5), {0, 5, 10}},
      {StepTicks({0.1, 0.3}, 0.1), {0.1, 0.2, 0.30000000000000004}},  // an end that the arithmetic misses
      {StepTicks({0, 1}, 1e-9), {}},
      {LogTicks({1, 1000}, 5).labelled, {1, 10, 100, 1000}},
      {LogTicks({2, 30}, 9).labelled, {2, 5, 10, 20}},
      {LogTicks({90, 110}, 4).labelled, {90, 95, 100, 105, 110}},
      {LogTicks({1, 1e6}, 9, 3).labelled, {1, 1e3, 1e6}},
      {DateTicks({2, 20}, {.seconds = 604800}), {2, 9, 16}},  // Mondays
      {DateTicks({-0.5, 0.5}, {.seconds = 21600}), {-0.5, -0.25, 0, 0.25, 0.5}},
      {DateTicks({kJanuary15, kJune15}, {.months = 1}), {43862, 43891, 43922, 43952, 43983}},
      {DateTicks({-1e9, -1e8}, {.months = 1}), {}}};
  for (const auto& [ticks, expected] : rows) EXPECT_EQ(ticks, expected);
}

TEST(Plot, ADateBeforeDay0RunsEvenly) {
  for (const double date : {-1.25, -0.25, 0.0, 2.75}) EXPECT_EQ(EvenDays(DateAt(EvenDays(date)).days), EvenDays(date));
  EXPECT_EQ(EvenDays(-1.25), -0.75);
  EXPECT_EQ(DateAt(-0.75).days, -1.25);
}

TEST(Plot, Scales) {
  EXPECT_EQ(Scale({0, 10}, false, 100, 0).Pixel(2.5), 75);
  EXPECT_EQ(Scale({1, 100}, true, 0, 200).Pixel(10), 100);
  EXPECT_EQ(Scale({-1e308, 1e308}, false, 0, 200).Pixel(0), 100);
  const Range point = Widened({5, 5});
  EXPECT_TRUE(point.min < 5 && point.max > 5);
  EXPECT_EQ(LogRange({0, 1000}, Range{2, 50}).min, 2);
}

TEST(Plot, SvgEscapes) {
  Svg svg(1.005, 20, u"a<b> & \x01");
  svg.Add("g", {{"id", "\"&"}, {"x", -0.001}, {"none", ""}});
  const std::string text = svg.Finish();
  EXPECT_NE(text.find("<title>a&lt;b&gt; &amp; \xEF\xBF\xBD</title>"), std::string::npos) << text;
  EXPECT_NE(text.find("<g id=\"&quot;&amp;\" x=\"0\"/>"), std::string::npos) << text;
}

}  // namespace
}  // namespace plot
