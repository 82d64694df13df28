// Drives a fuzz target without libFuzzer: DRIVER ITERATIONS [CORPUS FILE...]. The inputs are the same on each
// run: the corpus as it is, then random bytes and mutations of the corpus by turns.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>
#include <random>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

using Bytes = std::vector<std::uint8_t>;

class InputMaker {
 public:
  explicit InputMaker(std::vector<Bytes> corpus) : corpus_(std::move(corpus)) {}

  Bytes next() {
    if (corpus_.empty() || below(4) == 0) return randomBytes();
    Bytes input = corpus_[below(corpus_.size())];
    for (std::size_t changes = 1 + below(8); changes > 0; --changes) mutate(input);
    return input;
  }

 private:
  std::size_t below(std::size_t limit) { return static_cast<std::size_t>(generator_() % limit); }
  std::uint8_t byte() { return static_cast<std::uint8_t>(below(256)); }

  Bytes randomBytes() {
    Bytes input(below(600));
    for (auto& value : input) value = byte();
    return input;
  }

  void mutate(Bytes& input) {
    const auto at = static_cast<std::ptrdiff_t>(below(input.size() + 1));
    const auto place = input.begin() + at;
    const std::size_t change = below(4);
    if (change == 0) {
      input.insert(place, byte());
    } else if (change == 1) {
      input.erase(place, input.end());
    } else if (place != input.end()) {
      change == 2 ? static_cast<void>(input.erase(place)) : static_cast<void>(*place = byte());
    }
  }

  std::mt19937 generator_{20260101};
  std::vector<Bytes> corpus_;
};

Bytes readFile(const char* path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) {
    std::cerr << "cannot read " << path << '\n';
    std::exit(1);
  }
  return Bytes(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
}

}  // namespace

int main(int argc, char** argv) {
  const long iterations = argc > 1 ? std::strtol(argv[1], nullptr, 10) : 0;
  if (iterations <= 0) {
    std::cerr << "usage: " << argv[0] << " ITERATIONS [CORPUS FILE...]\n";
    return 2;
  }
  std::vector<Bytes> corpus;
  for (int i = 2; i < argc; ++i) corpus.push_back(readFile(argv[i]));
  for (const Bytes& input : corpus) LLVMFuzzerTestOneInput(input.data(), input.size());
  InputMaker inputs(std::move(corpus));
  for (long i = 0; i < iterations; ++i) {
    const Bytes input = inputs.next();
    LLVMFuzzerTestOneInput(input.data(), input.size());
  }
  return 0;
}
