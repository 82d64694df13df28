#include "devices/mpv_media.h"

#include <algorithm>
#include <array>
#include <utility>

namespace devices {
namespace {

using platform::MediaFigure;
using platform::TimeFormat;

constexpr std::chrono::seconds checkInterval{1};

// An address by which libmpv plays bytes from memory.
std::string inMemory(const std::vector<char>& bytes) {
  constexpr const char* digits = "0123456789abcdef";
  std::string address = "hex://";
  address.reserve(address.size() + 2 * bytes.size());
  for (const char byte : bytes) {
    const auto value = static_cast<unsigned char>(byte);
    address += digits[value >> 4];
    address += digits[value & 0xF];
  }
  return address;
}

}  // namespace

std::int64_t MpvMedia::Device::length() const {
  if (recorder) return format.millisecondsFor(static_cast<std::int64_t>(recorder->size()));
  return player->length();
}

std::int64_t MpvMedia::Device::position() const {
  if (!player) return length();
  const std::int64_t reached = player->position();
  return reached == player->length() ? length() : reached;
}

MpvMedia::Device* MpvMedia::find(const std::string& alias) {
  const auto found = devices_.find(alias);
  return found == devices_.end() ? nullptr : &found->second;
}

std::unique_ptr<MpvPlayer> MpvMedia::open(std::string address) {
  const MpvFunctions* mpv = library_.functions();
  if (mpv == nullptr) return nullptr;
  auto player = std::make_unique<MpvPlayer>(*mpv, ends_, std::move(address));
  return player->opened() ? std::move(player) : nullptr;
}

MpvPlayer* MpvMedia::playerOf(const std::string& alias) {
  Device* device = find(alias);
  if (device == nullptr) return nullptr;
  if (device->recorder && !device->player && device->recorder->size() > 0) {
    device->recorder->stop();
    device->player = open(inMemory(platform::wavFile(device->format, device->recorder->samples())));
  }
  return device->player.get();
}

// Without a loudspeaker libmpv goes on playing to nowhere, and it does not notice one that comes back.
void MpvMedia::restoreOutput(MpvPlayer& player) {
  const auto now = std::chrono::steady_clock::now();
  if (now - checkedAt_ < checkInterval || player.mode() != MpvPlayer::Mode::Playing) return;
  checkedAt_ = now;
  if (!player.unheard() || !connection_.hasLoudspeaker() || connection_.hanging()) return level_.reapply();
  player.stop();
  player.reopenOutput();
  playAtLevel(player);
}

void MpvMedia::playAtLevel(MpvPlayer& player) {
  player.awaitOutput();
  level_.applyToAll();
  player.play();
}

void MpvMedia::readEnds(const std::string& path) const {
  const auto file = files_.open(path, platform::OpenMode::Read);
  std::array<char, 4096> block{};
  file->readAt(0, block);
  file->readAt(file->size() - std::min<std::uint64_t>(file->size(), block.size()), block);
}

void MpvMedia::openFile(const std::string& alias, const std::string& path) {
  if (devices_.contains(alias)) return;
  readEnds(path);
  Device device;
  device.player = open(path);
  if (!device.player) return;
  if (const auto volume = volumes_.find(alias); volume != volumes_.end())
    device.player->setVolume(volume->second / 1000.0);
  devices_.emplace(alias, std::move(device));
}

void MpvMedia::openRecorder(const std::string& alias) {
  if (devices_.contains(alias)) return;
  devices_[alias].recorder = std::make_unique<PulseRecorder>(connection_);
}

void MpvMedia::play(const std::string& alias) {
  if (MpvPlayer* player = playerOf(alias)) playAtLevel(*player);
}

void MpvMedia::playFrom(const std::string& alias, std::int64_t position) {
  seek(alias, position);
  play(alias);
}

void MpvMedia::stop(const std::string& alias) {
  const Device* device = find(alias);
  if (device == nullptr) return;
  if (device->recorder) device->recorder->stop();
  if (device->player) device->player->stop();
}

void MpvMedia::pause(const std::string& alias) {
  const Device* device = find(alias);
  if (device != nullptr && device->player) device->player->pause();
}

void MpvMedia::seek(const std::string& alias, std::int64_t position) {
  MpvPlayer* player = playerOf(alias);
  if (player == nullptr) return;
  const Device& device = *find(alias);
  player->seek(device.timeFormat == TimeFormat::Bytes ? device.format.millisecondsFor(position) : position);
}

void MpvMedia::record(const std::string& alias) {
  Device* device = find(alias);
  if (device == nullptr || !device->recorder) return;
  device->player.reset();
  device->recorder->start(device->format);
}

void MpvMedia::save(const std::string& alias, const std::string& path) {
  const Device* device = find(alias);
  if (device == nullptr || !device->recorder) return;
  platform::saveWhole(files_, path, platform::wavFile(device->format, device->recorder->samples()));
}

void MpvMedia::setTimeFormat(const std::string& alias, TimeFormat format) {
  Device* device = find(alias);
  // Only a recorder can count in bytes.
  if (device != nullptr && (device->recorder || format == TimeFormat::Milliseconds)) {
    device->timeFormat = format;
  }
}

void MpvMedia::setRecording(const std::string& alias, platform::RecordingFigure figure, int value) {
  Device* device = find(alias);
  if (device != nullptr && device->recorder && device->recorder->size() == 0) {
    device->format.set(figure, value);
  }
}

void MpvMedia::setSpeed(const std::string& alias, int thousandths) {
  if (MpvPlayer* player = playerOf(alias)) player->setSpeed(thousandths / 1000.0);
}

void MpvMedia::setVolume(const std::string& alias, int thousandths) {
  volumes_[alias] = thousandths;
  if (MpvPlayer* player = playerOf(alias)) player->setVolume(thousandths / 1000.0);
}

void MpvMedia::setAudible(const std::string& alias, bool audible) {
  if (MpvPlayer* player = playerOf(alias)) player->setAudible(audible);
}

std::string MpvMedia::mode(const std::string& alias) {
  constexpr std::array<const char*, 3> words{"stopped", "paused", "playing"};
  const Device* device = find(alias);
  if (device == nullptr) return {};
  if (device->recorder && device->recorder->running()) return "recording";
  return device->player ? words[static_cast<std::size_t>(device->player->mode())] : "stopped";
}

std::optional<std::int64_t> MpvMedia::figure(const std::string& alias, MediaFigure figure) {
  const Device* device = find(alias);
  if (device == nullptr) return std::nullopt;
  if (figure == MediaFigure::Position && device->player) restoreOutput(*device->player);
  if (figure == MediaFigure::Length || figure == MediaFigure::Position) {
    const std::int64_t time = figure == MediaFigure::Length ? device->length() : device->position();
    return device->timeFormat == TimeFormat::Bytes ? device->format.bytesFor(time) : time;
  }
  if (!device->recorder) return std::nullopt;
  if (figure == MediaFigure::Channels) return device->format.channels;
  if (figure == MediaFigure::BitsPerSample) return device->format.bitsPerSample;
  return device->format.bytesPerSecond();
}

}  // namespace devices
