#include "brand/StyleSheet.h"

#include "brand/QuorvelBrand.h"
#include "brand/Typography.h"
#include "brand/toolkitTheme.h"

#include <algorithm>
#include <array>
#include <giomm/resource.h>
#include <gtkmm/cssprovider.h>
#include <gtkmm/icontheme.h>
#include <gtkmm/stylecontext.h>
#include <sstream>

extern "C" GResource* quorvel_get_resource();

namespace quorvel {
namespace {

struct Token {
  std::string_view name;
  Color color;
};
constexpr std::array tokens{
    Token{"background", QuorvelBrand::background},
    Token{"paper", QuorvelBrand::paper},
    Token{"panel", QuorvelBrand::panel},
    Token{"panelRaised", QuorvelBrand::panelRaised},
    Token{"control", QuorvelBrand::control},
    Token{"ink", QuorvelBrand::ink},
    Token{"secondaryInk", QuorvelBrand::secondaryInk},
    Token{"muted", QuorvelBrand::muted},
    Token{"green", QuorvelBrand::green},
    Token{"blue", QuorvelBrand::blue},
    Token{"clay", QuorvelBrand::clay},
    Token{"gold", QuorvelBrand::gold},
    Token{"line", QuorvelBrand::line},
    Token{"strongLine", QuorvelBrand::strongLine},
    Token{"consoleSidebarTop", ViewColors::consoleSidebarTop},
    Token{"consoleSidebarBottom", ViewColors::consoleSidebarBottom},
    Token{"inspector", ViewColors::inspector},
    Token{"userBubble", ViewColors::userBubble},
    Token{"clientSidebarTop", ViewColors::clientSidebarTop},
    Token{"clientSidebarBottom", ViewColors::clientSidebarBottom},
    Token{"clientToolbar", ViewColors::clientToolbar},
    Token{"closeButton", ViewColors::closeButton},
    Token{"minimiseButton", ViewColors::minimiseButton},
    Token{"zoomButton", ViewColors::zoomButton},
};

/// Percentages keep the exact fractions, which whole numbers up to 255 would round.
std::string cssColor(const Color& color) {
  std::ostringstream css;
  css.imbue(std::locale::classic());
  css << "rgba(" << color.red * 100 << "%, " << color.green * 100 << "%, " << color.blue * 100 << "%, "
      << color.alpha << ')';
  return css.str();
}

std::string paletteRules() {
  std::ostringstream rules;
  for (const auto& token : tokens)
    rules << "@define-color " << token.name << ' ' << cssColor(token.color) << ";\n";
  for (const auto tone : allCases<AccentTone>())
    rules << ".tone-" << rawValue(tone) << " { color: " << cssColor(color(tone)) << "; }\n";
  return rules.str();
}

/// The toolkit's style sheets can name colours, but no lengths.
std::string withRadius(std::string rules) {
  constexpr std::string_view name = "@radius";
  const auto length = std::to_string(static_cast<int>(QuorvelBrand::radius)) + "px";
  for (auto at = rules.find(name); at != rules.npos; at = rules.find(name, at))
    rules.replace(at, name.size(), length);
  return rules;
}

void openResources() {
  [[maybe_unused]] static const bool areOpen = (g_resources_register(quorvel_get_resource()), true);
}

} // namespace

std::string handWrittenRules() {
  openResources();
  const auto bytes = Gio::Resource::lookup_data_global("/com/quorvel/Desktop/quorvel.css");
  gsize size = 0;
  const auto* data = static_cast<const char*>(bytes->get_data(size));
  return {data, size};
}

std::string styleSheet() {
  return paletteRules() + typographyRules() + withRadius(handWrittenRules());
}

// Each further folder makes the toolkit read all of its symbols again, so this one comes once.
void installSymbols() {
  openResources();
  const auto symbols = Gtk::IconTheme::get_for_display(Gdk::Display::get_default());
  const std::string folder = "/com/quorvel/Desktop/icons";
  if (const auto folders = symbols->get_resource_path(); std::ranges::find(folders, folder) == folders.end())
    symbols->add_resource_path(folder);
}

void installStyle() {
  const auto display = Gdk::Display::get_default();
  keepToolkitDark();
  const auto provider = Gtk::CssProvider::create();
  provider->load_from_data(styleSheet());
  Gtk::StyleContext::add_provider_for_display(display, provider, GTK_STYLE_PROVIDER_PRIORITY_APPLICATION);
  installSymbols();
}

} // namespace quorvel
