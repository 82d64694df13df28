#include "volume/volume_general.h"

#include <array>

#include "model/volume_advice.h"

namespace volume {
namespace {

using platform::Colour;

constexpr Colour red = Colour::rgb(255, 0, 0);
constexpr Colour black = Colour::rgb(0, 0, 0);
constexpr Colour green = Colour::rgb(0, 255, 0);
constexpr Colour darkBlue = Colour::rgb(0, 0, 128);

// Of the advice, by loudness.
constexpr std::array<Colour, model::volumeAdvices.size()> adviceColours{red, green, darkBlue, black};

std::string asText(bool value) {
  return value ? "Vrai" : "Faux";
}

}  // namespace

VolumeGeneral::VolumeGeneral(const context::Context& context)
    : context_(context), dialog_(context.screens.volume), main_(context.screens.main) {
  dialog_.onLoad.handle([this] { load(); });
  dialog_.onUnload.handle([this] { master_.reset(); });
  dialog_.Tmr_Spy.tick.handle([this] { spy(); });
  const auto setPercent = [this] { master().Percent(dialog_.VScroll1.value); };
  dialog_.VScroll1.change.handle(setPercent);
  dialog_.VScroll1.scroll.handle(setPercent);
  dialog_.Chk_Mute.click.handle([this] { master().Mute(dialog_.Chk_Mute.value == 1); });
  dialog_.MyButton7.click.handle([this] { dialog_.unload(); });
  main_.Picture2.click.handle([this] { main_.Frame5.visible = false; });
  connectCallers();
}

void VolumeGeneral::connectCallers() {
  for (platform::MenuItem* entry : {&main_.mnVolume, &main_.mnRGS, &main_.mnRGS2}) {
    entry->click.handle([this] { dialog_.show(); });
  }
  for (platform::Button* button : {&main_.MyButton13, &context_.screens.announcements.MyButton15}) {
    button->click.handle([this] { dialog_.show(); });
  }
  main_.MyButton14.click.handle([this] {
    dialog_.unload();
    main_.Timer7.enabled = false;  // the ten seconds begin anew
    main_.Timer7.interval = 10000;
    main_.Timer7.enabled = true;
    dialog_.show();
  });
  platform::once(main_.Timer7, [this] { dialog_.unload(); });
  const auto openSettings = [this] { context_.outside.shell.openSoundSettings(); };
  dialog_.MyButton10.click.handle(openSettings);
  for (platform::MenuItem* entry : {&main_.mnAjusterAudio, &main_.mnAjustAudio, &main_.mnAjustAudio2}) {
    entry->click.handle(openSettings);
  }
}

clsAfMasterVolume& VolumeGeneral::master() {
  if (!master_) master_.emplace(context_.outside.volume);
  return *master_;
}

void VolumeGeneral::load() {
  dialog_.Tmr_Spy.wake();
  // Made anew, because the default device may have changed since the dialog was last open.
  master_.reset();
  const bool volume = master().VolumeEnabled();
  const bool mute = master().MuteEnabled();
  dialog_.Lbl_OS.caption =
      clsAfMasterVolume::UseAudioInterface() ? "(Pour Vista et supérieur)" : "(Pour XP et inférieur)";
  dialog_.Lbl_Class.caption = "Volume supporté => " + asText(volume) + "\nMute supporté => " + asText(mute);
  dialog_.VScroll1.enabled = volume;
  dialog_.Chk_Mute.enabled = mute;
  dialog_.Lbl_SoundCard1.caption =
      "Nombre de cartes : '" + std::to_string(master().GetNumberOfDevices()) + "'";
  dialog_.Txt_CardName.text = master().GetActiveDeviceName();
}

void VolumeGeneral::spy() {
  dialog_.Chk_Mute.value = master().Mute() ? 1 : 0;
  etatMuet_ = dialog_.Chk_Mute.value;
  showMute();
  showVolume();
  noticeOnce();
  restUntilMoved();
}

void VolumeGeneral::restUntilMoved() {
  platform::Observable* machine = context_.outside.volume.changes();
  if (machine == nullptr) return;
  forms::CreerCycle& editor = context_.screens.editor;
  dialog_.Tmr_Spy.rest({machine, &dialog_.Chk_Mute.value, &dialog_.VScroll1.value,
                        &dialog_.Lbl_Volume.caption, &dialog_.Image3.picture, &dialog_.Image1.picture,
                        &dialog_.Image4.picture, &editor.Image2.picture,
                        &context_.screens.announcements.VScroll2.value, &main_.Label34.caption,
                        &main_.Label34.colour, &main_.Label36.caption, &main_.Label36.colour,
                        &main_.Label38.caption, &main_.Image17.visible, &main_.Image18.visible});
}

void VolumeGeneral::showMute() {
  const bool on = etatMuet_ == 0;
  main_.Label34.caption = on ? "Le (Son) est Activé." : "Mais le (Son) est Désactivé.";
  main_.Label34.colour = on ? darkBlue : red;
  main_.Image17.visible = on;
  main_.Image18.visible = !on;
  dialog_.Image3.picture = on ? dialog_.Image1.picture : dialog_.Image4.picture;
  context_.screens.editor.Image2.picture = dialog_.Image3.picture;
}

// If this moves a bar, its handler sets the volume to what was just read, which changes nothing.
void VolumeGeneral::showVolume() {
  const int percent = master().Percent();
  dialog_.VScroll1.value = percent;
  context_.screens.announcements.VScroll2.value = percent;
  dialog_.Lbl_Volume.caption = std::to_string(percent) + " %";
  main_.Label38.caption = "Volume Actuel (" + std::to_string(percent) + "%)";
  const model::VolumeAdvice& advice = model::adviceFor(percent);
  main_.Label36.caption = advice.text;
  main_.Label36.colour = adviceColours.at(static_cast<std::size_t>(advice.loudness));
}

// Once, at the start: tells the rider if the sound is too low or off, while he can still change it.
void VolumeGeneral::noticeOnce() {
  if (noticed_) return;
  noticed_ = true;
  const bool tooLow = model::adviceFor(dialog_.VScroll1.value).loudness == model::Loudness::TooLow;
  const bool unheard = etatMuet_ != 0 || tooLow;
  if (!master().VolumeEnabled() || !unheard) return;
  main_.Picture2.caption = main_.Label36.caption.get() + "\n" + main_.Label34.caption.get();
  main_.Frame5.visible = true;
}

}  // namespace volume
