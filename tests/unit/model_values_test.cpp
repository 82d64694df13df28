#include <gmock/gmock.h>

#include "model/numbers.h"
#include "model/time_value.h"
#include "model/windows1252.h"
#include "platform/text.h"

namespace {

using namespace model;

TEST(ModelValues, TimesSurviveTheRoundTripThroughText) {
  // A sum of many seconds snaps back onto whole ones, whatever binary fractions have added up.
  const TimeValue second = timeValue("00:00:01");
  TimeValue ridden = 0;
  for (int i = 1; i < 86400; ++i) {
    ridden += second;
    if (i % 997 == 0) {
      ASSERT_EQ(timeValue(formatTime(ridden)), timeValue(formatSeconds(i))) << i;
    }
  }
}

TEST(ModelValues, TimeTexts) {
  struct Case {
    const char* text;
    std::optional<int> seconds;
  };
  for (const Case& c : std::initializer_list<Case>{{"00:10:00", 600},
                                                   {"1:2:3", 3723},
                                                   {" 23:59:59 ", 86399},
                                                   {"12:30", 45000},
                                                   {"24:00:00", {}},
                                                   {"00:60:00", {}},
                                                   {"-----", {}},
                                                   {"", {}},
                                                   {"12", {}},
                                                   {"1:2:3:4", {}},
                                                   {"00:00:00x", {}},
                                                   {"001:00:00", {}}}) {
    EXPECT_EQ(parseSeconds(c.text), c.seconds) << c.text;
  }
  EXPECT_THROW((void)timeValue("-----"), platform::Fault);
}

TEST(ModelValues, FormatsDropDaysRoundAndMirrorNegatives) {
  const TimeValue second = timeValue("00:00:01");
  EXPECT_EQ(formatTime(timeValue("23:00:00") + timeValue("02:00:00")), "01:00:00");
  EXPECT_EQ(formatTime(0 - second), "00:00:01");
  EXPECT_EQ(formatTime(timeValue("00:00:11") / 2), "00:00:06");
  EXPECT_EQ(formatTime(0.9999999), "00:00:00");
}

TEST(ModelValues, NumbersLenientAndStrict) {
  struct Case {
    const char* text;
    double lenient;
    std::optional<double> strict;
  };
  for (const Case& c : std::initializer_list<Case>{{"40", 40, 40},
                                                   {" 4 0 ", 40, {}},
                                                   {" 42 ", 42, 42},
                                                   {"", 0, {}},
                                                   {" ", 0, {}},
                                                   {"--", 0, {}},
                                                   {"12abc", 12, {}},
                                                   {"75 %", 75, {}},
                                                   {"1.5", 1.5, 1.5},
                                                   {"-3", -3, -3},
                                                   {"A", 0, {}}}) {
    EXPECT_EQ(lenientNumber(c.text), c.lenient) << c.text;
    if (c.strict) {
      EXPECT_EQ(strictNumber(c.text), *c.strict) << c.text;
    } else {
      EXPECT_THROW((void)strictNumber(c.text), platform::Fault) << c.text;
    }
  }
  EXPECT_EQ(formatBpm(181.5) + formatBpm(0.4) + "|" + formatBpm(0.5) + formatBpm(-2.5), "182|1-3");
  for (const auto& [value, text] : {std::pair{180.0, "180"},
                                    {178.4, "178.4"},
                                    {1e5, "100000"},
                                    {2.5e8, "250000000"},
                                    {1e22, "10000000000000000000000"},
                                    {1e-7, "0.0000001"},
                                    {200.3 - 60.1, "140.2"},
                                    {-0.0, "0"}}) {
    EXPECT_EQ(plainNumber(value), text);
  }
}

TEST(ModelValues, TextIsCutByCharacters) {
  using platform::left;
  using platform::mid;
  using platform::right;
  const std::string text = "é😀à b";
  EXPECT_EQ(platform::length(text), 5U);
  EXPECT_EQ(left(text, 2) + "|" + mid(text, 3, 1) + "|" + right(text, 3) + "|" + mid(text, 9), "é😀|à|à b|");
  EXPECT_EQ(platform::length("\xE9t\xE9"), 3U) << "stray bytes count one each";
  EXPECT_EQ(left("ab", 5) + mid("ab", 2, 9) + right("ab", 9), "abbab");
}

TEST(ModelValues, CodePageRoundTrip) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
  EXPECT_EQ(toWindows1252(fromWindows1252(all)), all);
  EXPECT_EQ(toWindows1252("é€œ😀日\xFF!"), "\xE9\x80\x9C\?\?\?!");
}

}  // namespace
