#include <gtest/gtest.h>

#include "support/rig.h"
#include "volume/volume_general.h"

namespace {

using volume::clsAfMasterVolume;

TEST(MasterVolume, RoundsHalvesToEvenAndKeepsToItsScale) {
  support::RecordedVolume device;
  for (const auto& [level, percent] :
       {std::pair{0.0, 0}, {0.125, 12}, {0.375, 38}, {0.876, 88}, {1.0, 100}, {1.53, 100}}) {
    device.loudness = level;
    EXPECT_EQ(clsAfMasterVolume(device).Percent(), percent) << level;
  }
  clsAfMasterVolume master(device);
  for (const int wanted : {-1, 101}) master.Percent(wanted);
  EXPECT_EQ(device.writes, 0);
  master.Percent(45);
  EXPECT_DOUBLE_EQ(device.loudness, 0.45);
  EXPECT_EQ(master.GetNumberOfDevices(), 2);
}

TEST(MasterVolume, NamesTheDeviceInThirtyTwoCharacters) {
  support::RecordedVolume device;
  for (const auto& [name, shown] :
       {std::pair{"  Écouteurs ", "Écouteurs"},
        {"é234567890123456789012345678901234", "é2345678901234567890123456789012"},
        {"", "Not Identified"}}) {
    device.name = name;
    EXPECT_EQ(clsAfMasterVolume(device).GetActiveDeviceName(), shown);
  }
}

TEST(MasterVolume, IsFixedAtItsMakingAndInertWithoutADevice) {
  support::RecordedVolume device;
  device.present = false;
  device.silent = true;
  clsAfMasterVolume master(device);
  device.present = true;  // too late: it was asked once, at its making
  EXPECT_FALSE(master.VolumeEnabled() || master.MuteEnabled() || master.Mute());
  EXPECT_EQ(master.Percent(), 0);
  EXPECT_EQ(master.GetNumberOfDevices(), 0);
  master.Percent(40);
  master.Mute(false);
  EXPECT_EQ(device.writes, 0);
}

struct Dialog : testing::Test, support::Rig {
  forms::VolumeGeneral& form = screens.volume;
  forms::MainForm& main = screens.main;
  volume::VolumeGeneral logic{context};
};

TEST_F(Dialog, AdvisesByTheLevel) {
  const platform::Colour black = platform::Colour::rgb(0, 0, 0);
  const platform::Colour red = platform::Colour::rgb(255, 0, 0);
  const platform::Colour blue = platform::Colour::rgb(0, 0, 128);
  const platform::Colour green = platform::Colour::rgb(0, 255, 0);
  form.load();
  for (const auto& [low, high, words, colour] : {std::tuple{0, 49, "insuffisant", red},
                                                 {50, 74, "un peu faible", green},
                                                 {75, 85, "satisfaisant", blue},
                                                 {86, 100, "un peu fort", black}}) {
    for (const int percent : {low, high}) {
      volume.loudness = percent / 100.0;
      advance(200);
      EXPECT_EQ(main.Label36.caption.get(), std::string("Le Volume de votre (Son) semble ") + words + "...");
      EXPECT_EQ(main.Label36.colour.get(), colour) << percent;
      EXPECT_EQ(screens.announcements.VScroll2.value.get(), percent);
      EXPECT_EQ(main.Label38.caption.get(), "Volume Actuel (" + std::to_string(percent) + "%)");
    }
  }
  volume.silent = true;
  advance(200);
  EXPECT_EQ(screens.editor.Image2.picture.get(), form.Image4.picture.get());
}

TEST_F(Dialog, LooksForTheDeviceAnewThoughTheBarWasWrittenMeanwhile) {
  volume.present = false;
  form.load();
  form.unload();
  form.VScroll1.value = 30;
  volume.present = true;
  form.load();
  EXPECT_TRUE(form.VScroll1.enabled);
}

TEST_F(Dialog, TellsOnceAtTheStartWhatWouldNotBeHeard) {
  const struct {
    double level;
    bool mute, present, told;
  } rows[]{{0.8, false, true, false},
           {0.4, false, true, true},
           {0.8, true, true, true},
           {0.0, false, false, false}};
  for (const auto& row : rows) {
    support::Rig fresh;
    const volume::VolumeGeneral dialog(fresh.context);
    fresh.volume.loudness = row.level;
    fresh.volume.silent = row.mute;
    fresh.volume.present = row.present;
    fresh.screens.volume.load();
    fresh.advance(200);
    EXPECT_EQ(fresh.screens.main.Frame5.visible.get(), row.told) << row.level << row.mute;
    fresh.screens.main.Picture2.click();
    fresh.advance(1000);
    EXPECT_FALSE(fresh.screens.main.Frame5.visible);
  }
}

}  // namespace
