#include "platform/timer.h"

namespace platform {

Observable::~Observable() {
  for (Timer* timer : resting_) std::erase(timer->restsOn_, this);
}

void Observable::wakeTimers() {
  while (!resting_.empty()) resting_.back()->wake();
}

Timer::~Timer() {
  forgetWhatItRestsOn();
  if (scheduler_ != nullptr) scheduler_->release(*this);
}

void Timer::rest(std::initializer_list<Observable*> until) {
  forgetWhatItRestsOn();
  if (scheduler_ == nullptr || !scheduler_->layToRest(*this)) return;
  restsOn_.assign(until);
  for (Observable* observable : until) observable->resting_.push_back(this);
}

void Timer::wake() {
  forgetWhatItRestsOn();
  if (scheduler_ != nullptr) scheduler_->wake(*this);
}

void Timer::forgetWhatItRestsOn() {
  for (Observable* observable : restsOn_) std::erase(observable->resting_, this);
  restsOn_.clear();
}

}  // namespace platform
