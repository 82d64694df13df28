#include "console/terminal.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>

namespace console {
namespace {

constexpr std::array endingSignals{SIGINT, SIGTERM, SIGHUP, SIGQUIT};

volatile std::sig_atomic_t signalled = 0;  // a handler can reach nothing else

void recordSignal(int) {
  signalled = 1;
}

}  // namespace

struct Terminal::Saved {
  termios mode{};
};

Terminal::Terminal(Input input) : input_(input), redraws_(isatty(STDOUT_FILENO) != 0) {
  struct sigaction note {};
  note.sa_handler = &recordSignal;  // without SA_RESTART, so that a wait ends
  for (const int number : endingSignals) sigaction(number, &note, nullptr);
  // Closed from the start, it may become any file that is opened next.
  if (input_ == Input::Anything && fcntl(STDIN_FILENO, F_GETFD) < 0) signalled = 1;  // NOLINT(*-vararg)
  auto saved = std::make_unique<Saved>();
  if (tcgetattr(STDIN_FILENO, &saved->mode) != 0) return;
  termios keys = saved->mode;
  keys.c_lflag &= ~static_cast<tcflag_t>(ICANON | ECHO);
  keys.c_cc[VMIN] = 0;
  keys.c_cc[VTIME] = 0;
  // In the background the call below would stop the program.
  if (tcgetpgrp(STDIN_FILENO) != getpgrp()) return;
  tcsetattr(STDIN_FILENO, TCSANOW, &keys);
  saved_ = std::move(saved);
}

Terminal::~Terminal() {
  if (saved_) tcsetattr(STDIN_FILENO, TCSANOW, &saved_->mode);
  for (const int number : endingSignals) std::signal(number, SIG_DFL);
}

int Terminal::width() const {
  winsize size{};
  if (ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) != 0 || size.ws_col == 0) return 80;
  return size.ws_col;
}

void Terminal::wait(std::chrono::milliseconds time) {
  if (interrupted()) time = std::min(time, std::chrono::milliseconds(20));
  pollfd input{STDIN_FILENO, POLLIN, 0};
  const int ready = poll(&input, saved_ || input_ == Input::Anything ? 1 : 0,
                         static_cast<int>(std::max<long>(0, time.count())));
  if (ready <= 0) return;
  std::array<char, 64> bytes{};
  const ssize_t count = read(STDIN_FILENO, bytes.data(), bytes.size());
  if (count > 0) keys_.insert(keys_.end(), bytes.begin(), bytes.begin() + count);
  const bool failed = count < 0 && errno != EINTR && input_ == Input::Anything;
  if (count == 0 || failed) signalled = 1;  // the terminal has gone
}

char Terminal::key() {
  if (keys_.empty()) return 0;
  const char first = keys_.front();
  keys_.pop_front();
  return first;
}

bool Terminal::interrupted() {
  return signalled != 0;
}

}  // namespace console
