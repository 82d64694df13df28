// Widgets that show a recording: the ring of its seconds, its waveform, and the bar of its progress.
#pragma once

#include <QWidget>
#include <vector>

namespace widgets {

// The seconds of a take, in a ring that is full for the longest take allowed.
class TakeRing final : public QWidget {
  Q_OBJECT
 public:
  enum class Mood { Resting, Recording, Listening };

  explicit TakeRing(QWidget* parent = nullptr);
  void show(int seconds, Mood mood);
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent*) override;

 private:
  int seconds_ = 0;
  Mood mood_ = Mood::Resting;
};

class Waveform final : public QWidget {
  Q_OBJECT
 public:
  static constexpr std::size_t parts = 240;

  explicit Waveform(QWidget* parent = nullptr);
  void setPeaks(std::vector<float> peaks);
  // How much of it has been heard, 0 to 1.
  void setHeard(double share);
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent*) override;

 private:
  std::vector<float> peaks_;
  double heard_ = 0;
};

// How much of a piece has been played, 0 to 1.
class TimeBar final : public QWidget {
  Q_OBJECT
 public:
  explicit TimeBar(QWidget* parent = nullptr);
  void setShare(double share);
  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent*) override;

 private:
  double share_ = 0;
};

}  // namespace widgets
