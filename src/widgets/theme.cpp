#include "widgets/theme.h"

#include <QApplication>
#include <QFile>
#include <QFontDatabase>
#include <QRegularExpression>
#include <QStyleFactory>
#include <array>
#include <cmath>

namespace widgets {
namespace {

struct NamedColour {
  const char* name;  // in the style sheet
  const char* dark;
  const char* light;
};

constexpr std::array<NamedColour, 15> colours{{
    {"ground", "#0f1419", "#f4f6f8"},
    {"card", "#182029", "#ffffff"},
    {"raised", "#202b36", "#eaeff3"},
    {"line", "#2a3642", "#d5dde4"},
    {"text", "#eef3f7", "#16202a"},
    {"second", "#9fb0bf", "#51616f"},
    {"accent", "#4cc2ff", "#0067a8"},
    {"onaccent", "#06202f", "#ffffff"},
    {"deepaccent", "#7ad3ff", "#00528a"},
    {"dimaccent", "#25566f", "#8fb6d1"},
    {"selected", "#1d3646", "#dcebf4"},
    {"warning", "#ffb454", "#8a5200"},
    {"wrong", "#ff6b6b", "#b3261e"},
    {"good", "#5ad19a", "#0f7347"},
    {"scrim", "#d80b0f13", "#d8e4e9ee"},
}};

struct FamilyColour {
  const char* dark;
  const char* light;
};

// In the order of model::EffortFamily.
constexpr std::array<FamilyColour, 8> families{{{"#58c4dd", "#0b7285"},
                                                {"#63c979", "#2b7a3d"},
                                                {"#ff9f5a", "#b3541e"},
                                                {"#ff6f91", "#b8264f"},
                                                {"#d9b35b", "#7d5f14"},
                                                {"#8fb8ff", "#3b5fae"},
                                                {"#c39bff", "#6f42b5"},
                                                {"#aab4be", "#5b6670"}}};

struct Translated {
  platform::Colour asked;
  const char* dark;
};

const std::array<Translated, 5> onDark{{{platform::Colour::rgb(255, 0, 0), "#ff7a7a"},
                                        {platform::Colour::rgb(0, 0, 255), "#8ab4ff"},
                                        {platform::Colour::rgb(0, 60, 116), "#9cc7f0"},
                                        {platform::Colour::rgb(0, 0, 128), "#9cc7f0"},
                                        {platform::Colour::rgb(0, 128, 0), "#5ad19a"}}};

// Pure red is too faint on white for small letters.
constexpr auto legibleRed = "#d60000";

QColor named(ThemeMode mode, QLatin1String name) {
  for (const NamedColour& colour : colours) {
    if (name == QLatin1String(colour.name))
      return QColor(mode == ThemeMode::Dark ? colour.dark : colour.light);
  }
  return {};
}

QString firstInstalled(const QString& family) {
  static const QStringList installed = QFontDatabase::families();
  return installed.contains(family) ? family : QFontDatabase::systemFont(QFontDatabase::GeneralFont).family();
}

QString numberFamily() {
  return firstInstalled(QStringLiteral("B612"));
}

}  // namespace

QString sansFamily() {
  return firstInstalled(QStringLiteral("Inter"));
}

QPalette themePalette(ThemeMode mode) {
  const auto colour = [&](const char* name) { return named(mode, QLatin1String(name)); };
  QPalette palette;
  const std::array<std::pair<QPalette::ColorRole, const char*>, 16> roles{{
      {role::ground, "ground"},
      {role::card, "card"},
      {role::line, "line"},
      {role::text, "text"},
      {role::second, "second"},
      {role::accent, "accent"},
      {role::wrong, "wrong"},
      {role::good, "good"},
      {role::warning, "warning"},
      {QPalette::Text, "text"},
      {QPalette::Button, "card"},
      {QPalette::ButtonText, "text"},
      {QPalette::HighlightedText, "onaccent"},
      {QPalette::AlternateBase, "raised"},
      {QPalette::ToolTipBase, "raised"},
      {QPalette::ToolTipText, "text"},
  }};
  for (const auto& [where, name] : roles) palette.setColor(where, colour(name));
  for (const QPalette::ColorRole where : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, where, mixed(colour("second"), colour("ground"), 0.4));
  }
  return palette;
}

QString themeStyleSheet(ThemeMode mode, double scale) {
  QFile file(QStringLiteral(":/ventoria/theme.qss"));
  if (!file.open(QIODevice::ReadOnly)) return {};
  QString sheet = QString::fromUtf8(file.readAll());
  sheet.replace(QLatin1String("@sans"), sansFamily()).replace(QLatin1String("@numbers"), numberFamily());
  sheet.replace(QLatin1String("@theme"), QLatin1String(mode == ThemeMode::Dark ? "dark" : "light"));
  for (const NamedColour& colour : colours) {
    // Whole words only, in case a longer name begins with this one.
    sheet.replace(QRegularExpression(QLatin1Char('@') + QLatin1String(colour.name) + QLatin1String("\\b")),
                  QLatin1String(mode == ThemeMode::Dark ? colour.dark : colour.light));
  }
  static const QRegularExpression length(QStringLiteral("(\\d+)(dp|hp)"));
  QString sized;
  qsizetype done = 0;
  for (auto match = length.globalMatch(sheet); match.hasNext();) {
    const QRegularExpressionMatch hit = match.next();
    sized += QStringView(sheet).mid(done, hit.capturedStart() - done);
    // A half is rounded down: larger letters might not fit.
    const int pixels = static_cast<int>(std::ceil(hit.captured(1).toDouble() * scale - 0.5));
    // "hp" is half a length, rounded down: Qt rounds corners only if the radius is at most half the box.
    sized +=
        QString::number(hit.captured(2) == QLatin1String("hp") ? pixels / 2 : pixels) + QLatin1String("px");
    done = hit.capturedEnd();
  }
  sized += QStringView(sheet).mid(done);
  return sized;
}

void applyTheme(ThemeMode mode) {
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  QApplication::setPalette(themePalette(mode));
  QFont font(sansFamily());
  font.setPixelSize(15);
  // Inter draws "=>" as an arrow by its contextual alternates; the texts must show as they stand.
  font.setStyleStrategy(QFont::StyleStrategy(QFont::PreferAntialias | QFont::PreferNoShaping));
  QApplication::setFont(font);
}

ThemeMode platformTheme() {
  // The plain grey that Qt uses without a desktop tells nothing; dark is the choice then.
  const QColor window = QGuiApplication::palette().color(QPalette::Window);
  const bool plain = window == QColor(0xef, 0xef, 0xef) || window == QColor(0xf0, 0xf0, 0xf0);
  return plain || window.lightness() < 128 ? ThemeMode::Dark : ThemeMode::Light;
}

bool isDark(const QPalette& palette) {
  return palette.color(role::ground).lightness() < 128;
}

QColor familyColour(const QPalette& palette, model::EffortFamily family) {
  const FamilyColour& pair = families.at(static_cast<std::size_t>(family));
  return QColor(isDark(palette) ? pair.dark : pair.light);
}

QColor onScreen(const QPalette& palette, const platform::Colour& colour) {
  if (colour.automatic) return palette.color(role::text);
  const QColor asked(colour.red, colour.green, colour.blue);
  if (!isDark(palette)) return asked == QColor(Qt::red) ? QColor(legibleRed) : asked;
  for (const Translated& row : onDark) {
    if (row.asked == colour) return QColor(row.dark);
  }
  return asked.lightness() < 150 ? QColor::fromHsl(asked.hslHue(), asked.hslSaturation(), 190) : asked;
}

QColor mixed(const QColor& a, const QColor& b, double share) {
  const auto channel = [&](int x, int y) { return static_cast<int>(std::lround(x + (y - x) * share)); };
  return {channel(a.red(), b.red()), channel(a.green(), b.green()), channel(a.blue(), b.blue())};
}

double scaleOf(const QWidget* widget) {
  const QVariant scale = widget->window()->property("scale");
  return scale.isValid() ? scale.toDouble() : 1.0;
}

int dp(const QWidget* widget, double length) {
  return static_cast<int>(std::lround(length * scaleOf(widget)));
}

QFont sansFont(const QWidget* widget, double size, int weight) {
  QFont font = QApplication::font();
  font.setFamily(sansFamily());
  font.setPixelSize(std::max(1, dp(widget, size)));
  font.setWeight(static_cast<QFont::Weight>(weight));
  return font;
}

QFont numberFont(const QWidget* widget, double size) {
  QFont font(numberFamily());
  font.setPixelSize(std::max(1, dp(widget, size)));
  font.setBold(true);
  return font;
}

}  // namespace widgets
