#include "desktop/end_signals.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <csignal>

namespace desktop {
namespace {

constexpr std::array requests{SIGTERM, SIGHUP, SIGINT};

// A handler may do no more than this: note it, and wake the loop by a byte.
volatile std::sig_atomic_t noted = 0;
std::array<int, 2> pipeEnds{-1, -1};

void note(int) {
  noted = 1;
  const char byte = 0;
  if (write(pipeEnds[1], &byte, 1) < 0) return;  // the pipe is full: the loop is being woken already
}

void handleBy(void (*handler)(int)) {
  struct sigaction action {};
  action.sa_handler = handler;
  action.sa_flags = SA_RESTART;
  for (const int signal : requests) sigaction(signal, &action, nullptr);
}

}  // namespace

EndSignals::EndSignals() {
  if (pipe2(pipeEnds.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
  notifier_ = std::make_unique<QSocketNotifier>(pipeEnds[0], QSocketNotifier::Read);
  connect(notifier_.get(), &QSocketNotifier::activated, this, [this] {
    notifier_->setEnabled(false);
    emit asked();
  });
  handleBy(note);
}

EndSignals::~EndSignals() {
  handleBy(SIG_DFL);
  notifier_.reset();
  for (int& end : pipeEnds) {
    if (end >= 0) close(end);
    end = -1;
  }
}

bool EndSignals::raised() {
  return noted != 0;
}

}  // namespace desktop
