#include "platform/media_parser.h"

#include <algorithm>
#include <charconv>
#include <exception>
#include <limits>
#include <string_view>
#include <vector>

#include "platform/text.h"

namespace platform {
namespace {

// The variable parts of a command.
struct Call {
  std::string alias;
  std::string path;
  std::int64_t number = 0;
};

using Action = std::string (*)(MediaBackend&, const Call&);

template <auto Method, auto... Arguments>
std::string invoke(MediaBackend& backend, const Call& call) {
  (backend.*Method)(call.alias, Arguments...);
  return {};
}

template <auto Method>
std::string invokeWithNumber(MediaBackend& backend, const Call& call) {
  (backend.*Method)(call.alias, call.number);
  return {};
}

template <RecordingFigure Figure>
std::string setRecordingFigure(MediaBackend& backend, const Call& call) {
  if (call.number >= 0 && call.number <= std::numeric_limits<int>::max()) {
    backend.setRecording(call.alias, Figure, static_cast<int>(call.number));
  }
  return {};
}

std::string setVolume(MediaBackend& backend, const Call& call) {
  if (call.number >= 0 && call.number <= 1000) backend.setVolume(call.alias, static_cast<int>(call.number));
  return {};
}

std::string setSpeed(MediaBackend& backend, const Call& call) {
  if (call.number > 0 && call.number <= 4000) backend.setSpeed(call.alias, static_cast<int>(call.number));
  return {};
}

template <auto Method>
std::string invokeWithPath(MediaBackend& backend, const Call& call) {
  (backend.*Method)(call.alias, call.path);
  return {};
}

template <MediaFigure Figure>
std::string queryFigure(MediaBackend& backend, const Call& call) {
  const std::optional<std::int64_t> value = backend.figure(call.alias, Figure);
  return value ? std::to_string(*value) : std::string();
}

// Nothing is ever shown, so there is no picture to measure or to place.
std::string noPicture(MediaBackend&, const Call&) {
  return {};
}

// The words of a command; A stands for a name, N for a number, P for the rest of the text, a path.
struct Pattern {
  std::string_view words;
  Action action;
};

using B = MediaBackend;

constexpr Pattern patterns[] = {
    {"open new type waveaudio alias A", &invoke<&B::openRecorder>},
    {"close all",
     [](B& backend, const Call&) {
       backend.closeAll();
       return std::string();
     }},
    {"close A", &invoke<&B::close>},
    {"play A", &invoke<&B::play>},
    {"play A from N", &invokeWithNumber<&B::playFrom>},
    {"stop A", &invoke<&B::stop>},
    {"pause A", &invoke<&B::pause>},
    {"seek A to start", &invoke<&B::seek, 0>},
    {"seek A to N", &invokeWithNumber<&B::seek>},
    {"record A", &invoke<&B::record>},
    {"save A P", &invokeWithPath<&B::save>},
    {"set A time format ms", &invoke<&B::setTimeFormat, TimeFormat::Milliseconds>},
    {"set A time format milliseconds", &invoke<&B::setTimeFormat, TimeFormat::Milliseconds>},
    {"set A time format bytes", &invoke<&B::setTimeFormat, TimeFormat::Bytes>},
    {"set A samplespersec N", &setRecordingFigure<RecordingFigure::SamplesPerSecond>},
    {"set A bitspersample N", &setRecordingFigure<RecordingFigure::BitsPerSample>},
    {"set A channels N", &setRecordingFigure<RecordingFigure::Channels>},
    {"set A speed N", &setSpeed},
    {"set A audio all off", &invoke<&B::setAudible, false>},
    {"set A audio all on", &invoke<&B::setAudible, true>},
    {"setaudio A volume to N", &setVolume},
    {"status A mode", [](B& backend, const Call& call) { return backend.mode(call.alias); }},
    {"status A length", &queryFigure<MediaFigure::Length>},
    {"status A position notify", &queryFigure<MediaFigure::Position>},
    {"status A channels", &queryFigure<MediaFigure::Channels>},
    {"status A bitspersample", &queryFigure<MediaFigure::BitsPerSample>},
    {"status A bytespersec", &queryFigure<MediaFigure::BytesPerSecond>},
    {"where A destination", &noPicture},
    {"put A window at N N N N", &noPicture},
    {"put A destination at N N N N", &noPicture},
};

std::string_view cutFirstWord(std::string_view& text) {
  const std::size_t blank = std::min(text.find(' '), text.size());
  const std::string_view word = text.substr(0, blank);
  text.remove_prefix(std::min(blank + 1, text.size()));
  return word;
}

bool readNumber(std::string_view word, std::int64_t& number) {
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
  return error == std::errc() && end == word.data() + word.size();
}

std::optional<Call> match(std::string_view words, std::string_view command) {
  Call call;
  while (!words.empty()) {
    const std::string_view wanted = cutFirstWord(words);
    if (wanted == "P") {
      call.path = command;
      command = {};
      if (call.path.empty()) return std::nullopt;
      continue;
    }
    const std::string_view word = cutFirstWord(command);
    if (wanted == "A" && !word.empty()) {
      call.alias = word;
    } else if (wanted == "N" ? !readNumber(word, call.number) : word != wanted) {
      return std::nullopt;
    }
  }
  if (!command.empty()) return std::nullopt;
  return call;
}

// "open MPEGVideo!" path " alias " name " parent " handle " Style " number. A path may contain these words
// itself, so the last " alias " is the one that counts.
std::optional<Call> matchOpenFile(std::string_view command) {
  constexpr std::string_view start = "open MPEGVideo!";
  constexpr std::string_view middle = " alias ";
  if (!command.starts_with(start)) return std::nullopt;
  const std::size_t end = command.rfind(middle);
  if (end == std::string_view::npos || end < start.size()) return std::nullopt;
  std::optional<Call> call = match("A parent N Style N", command.substr(end + middle.size()));
  if (call) call->path = command.substr(start.size(), end - start.size());
  // No path is taken for an address or an option.
  if (call && !call->path.starts_with('/')) call->path.insert(0, "./");
  return call;
}

}  // namespace

void ParsedMediaCommands::workIn(const std::string& folder) {
  folder_ = folder.empty() || folder.ends_with('/') ? folder : folder + "/";
}

std::string ParsedMediaCommands::send(const std::string& command) {
  try {
    if (const std::optional<Call> open = matchOpenFile(command)) {
      return invokeWithPath<&MediaBackend::openFile>(backend_, *open);
    }
    for (const Pattern& pattern : patterns) {
      std::optional<Call> call = match(pattern.words, command);
      if (!call) continue;
      if (!call->path.empty() && !call->path.starts_with('/')) call->path.insert(0, folder_);
      return pattern.action(backend_, *call);
    }
  } catch (const std::exception&) {  // a command that fails changes nothing and answers nothing
  }
  return {};
}

}  // namespace platform
