// Any bytes as a recording of the rider's own voice: said as they are and for no longer than allowed, or
// told.
#include <algorithm>

#include "fuzz/check.h"
#include "platform/wav_form.h"
#include "rehearsal/memory_file_system.h"
#include "voice/own_voice.h"
#include "voice/sound_bank.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  rehearsal::MemoryFileSystem files;
  files.folders.insert("/v");
  files.put("/v/101.wav", std::string(data, data + size));
  voice::OwnVoice own(files);
  own.lookIn("/v/");
  fuzz::check(own.has(101) == own.complaint().empty(), "what is not said is told");
  const platform::SoundClip& clip = *own.prompt(101);
  if (!own.has(101)) {
    fuzz::check(&clip == voice::promptByNumber(101), "the bank speaks instead");
    return 0;
  }
  fuzz::check(std::equal(clip.wav.begin(), clip.wav.end(), data, data + size), "it is said as it is");
  fuzz::check(platform::wavForm(clip.wav)->length() <= std::chrono::seconds(15), "it is short");
  return 0;
}
