#include "announcements/listening_level.h"

#include <array>

#include "forms/enr_une_annonce_words.h"

namespace announcements {
namespace {

// By level from 1 and by balance from -2: the left channel in the low half, the right one in the high half.
constexpr std::array<std::array<std::uint32_t, 5>, 7> levels{{
    {0x00000000, 0x00000000, 0x00000000, 0x00000000, 0x00000000},
    {0x00002828, 0x16972828, 0x28282828, 0x28281192, 0x28280000},
    {0x00005050, 0x2D2D5050, 0x50505050, 0x50502323, 0x50500000},
    {0x00007C7C, 0x46067C7C, 0x7C7C7C7C, 0x7C7C3677, 0x7C7C0000},
    {0x0000A7A7, 0x5E4EA7A7, 0xA7A7A7A7, 0xA7A7495A, 0xA7A70000},
    {0x0000D3D3, 0x5CADD3D3, 0xD3D3D3D3, 0xD3D35CAD, 0xD3D30000},
    {0x0000FFFF, 0x9000FFFF, 0xFFFFFFFF, 0xFFFF6FFF, 0xFFFF0000},
}};

}  // namespace

ListeningLevel::ListeningLevel(const context::Context& context)
    : page_(context.screens.announcements), output_(context.outside.level) {
  page_.VScroll1.change.handle(
      [this] { page_.MyFrame2.caption = "Volume " + std::to_string(page_.VScroll1.value - 1); });
  page_.VScroll1.scroll.handle([this] { stopFades(); });
  page_.MyButton1.click.handle([this] { fadeOut(); });
  page_.MyButton2.click.handle([this] { fadeIn(); });
  page_.HScroll3.change.handle([this] {
    page_.Timer5.interval = page_.HScroll3.value;
    page_.Timer6.interval = page_.HScroll3.value;
  });
  page_.Timer2.tick.handle([this] { apply(); });
  page_.Timer5.tick.handle([this] { fadeStep(page_.Timer5, -1, page_.VScroll1.last); });
  page_.Timer6.tick.handle([this] { fadeStep(page_.Timer6, 1, page_.VScroll1.first); });
  platform::once(page_.Timer10, [this] { page_.MyButton1.click(); });
  platform::once(page_.Timer11, [this] { page_.MyButton2.click(); });
}

void ListeningLevel::makeReady() {
  stopFades();
  page_.VScroll1.value = usualListeningLevel;
}

// A level that is not in the table changes nothing.
void ListeningLevel::apply() {
  const int down = page_.VScroll1.value - 1;
  const int across = page_.HScroll1.value + 2;
  const auto row = static_cast<std::size_t>(down);
  const auto column = static_cast<std::size_t>(across);
  if (row >= levels.size() || column >= levels[row].size()) return restUntilMoved();
  const std::uint32_t both = levels[row][column];
  if (output_.set(static_cast<std::uint16_t>(both & 0xFFFF), static_cast<std::uint16_t>(both >> 16)))
    restUntilMoved();
}

void ListeningLevel::restUntilMoved() {
  page_.Timer2.rest({&page_.VScroll1.value, &page_.HScroll1.value});
}

void ListeningLevel::stopFades() {
  page_.Timer5.enabled = false;
  page_.Timer6.enabled = false;
  page_.MyButton1.enabled = true;
  page_.MyButton2.enabled = true;
}

void ListeningLevel::fadeOut() {
  page_.MyButton2.enabled = true;
  page_.MyButton1.enabled = false;
  page_.Timer6.enabled = false;
  page_.Timer5.enabled = true;
  if (forms::takeStopOffered(page_)) forms::offerTakeStop(page_, false);
}

void ListeningLevel::fadeIn() {
  page_.MyButton2.enabled = false;
  page_.MyButton1.enabled = true;
  page_.Timer5.enabled = false;
  page_.Timer6.enabled = true;
}

void ListeningLevel::fadeStep(platform::Timer& timer, int step, int last) {
  if (page_.VScroll1.value != last) page_.VScroll1.value = page_.VScroll1.value + step;
  if (page_.VScroll1.value != last) return;
  timer.enabled = false;
  page_.MyButton1.enabled = true;
  page_.MyButton2.enabled = true;
}

}  // namespace announcements
