#include <gtest/gtest.h>

#include "console/arguments.h"
#include "console/options.h"
#include "platform/text.h"
#include "rehearsal/escaping.h"

namespace {

using namespace std::chrono_literals;
using console::Arguments;
using console::CommandError;
using rehearsal::SoundMode;

TEST(ConsoleTextTest, TakesTheLastTextToTheEndOfTheLine) {
  const std::pair<const char*, const char*> cases[]{{"  two  words \r", "two  words"},
                                                    {"\"  kept \"", "  kept "},
                                                    {"\"\"", ""},
                                                    {"\"", "\""},
                                                    {"say \"hi\"", "say \"hi\""},
                                                    {R"(a\tb\nc\\n)", "a\tb\nc\\n"},
                                                    {R"(C:\dir\)", R"(C:\dir\)"},
                                                    {"", ""}};
  for (const auto& [written, text] : cases) {
    EXPECT_EQ(Arguments(written).text(), text) << written;
    EXPECT_EQ(rehearsal::unescaped(rehearsal::escaped(text)), text);
  }
  EXPECT_EQ(rehearsal::escaped("a\tb\nc\\"), R"(a\tb\nc\\)");
}

TEST(ConsoleTextTest, RefusesWordsThatAreNoNumbers) {
  Arguments good(" 12\t-1.5 1 end");
  EXPECT_EQ(good.number("n"), 12);
  EXPECT_EQ(good.decimal("n"), -1.5);
  EXPECT_TRUE(good.flag("f"));
  EXPECT_THROW(good.end(), CommandError);
  EXPECT_EQ(good.word("w"), "end");
  EXPECT_NO_THROW(good.end());
  EXPECT_THROW(good.word("w"), CommandError);
  for (const char* bad : {"x", "1x", "99999999999", "1.5"}) {
    EXPECT_THROW(static_cast<void>(Arguments(bad).number("n")), CommandError) << bad;
  }
  EXPECT_THROW(static_cast<void>(Arguments("2").flag("f")), CommandError);
}

TEST(ConsoleOptionsTest, UnderstandsTheCommandLine) {
  const auto options =
      console::parseOptions({"--folder", "/x", "--clock=real", "--now", "2026-01-31 23:59:58.250", "--sound",
                             "timed", "--volume", "none", "--record-voice", "v", "s.txt"});
  EXPECT_EQ(options.folder, "/x");
  EXPECT_TRUE(options.realClock);
  const platform::LocalTime day{std::chrono::local_days{std::chrono::year{2026} / 1 / 31}};
  EXPECT_EQ(options.start - day, 24h - 1750ms);
  EXPECT_EQ(options.sound, SoundMode::Timed);
  EXPECT_EQ(options.volume, std::nullopt);
  EXPECT_EQ(options.recordVoice, "v");
  EXPECT_EQ(options.script, "s.txt");
  for (const char* bad :
       {"--folder", "--folder=", "--nope", "a|b", "--sound|loud", "--volume|101", "--volume|-1",
        "--clock|fast", "--speed|0", "--speed|nan", "--now|12:00:00", "--now|2026-02-29 12:00:00",
        "--now|2026-01-01 24:00:00", "--now|2026-01-01 12:00:00.5"}) {
    EXPECT_THROW(static_cast<void>(console::parseOptions(platform::split(bad, '|'))), console::UsageError)
        << bad;
  }
}

}  // namespace
