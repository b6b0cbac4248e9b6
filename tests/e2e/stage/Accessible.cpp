#include "e2e/stage/Accessible.h"

#include <gio/gio.h>
#include <stdexcept>
#include <utility>

namespace quorvel::e2e {
namespace {

constexpr auto objects = "org.a11y.atspi.Accessible";

/// The answer of a program if it has the type expected, and null where it has not, or there is none.
Variant call(GDBusConnection* bus, const std::string& program, const std::string& path, const char* interface,
             const char* method, GVariant* question, const char* answer) {
  constexpr int milliseconds = 5000;
  return Variant(g_dbus_connection_call_sync(bus, program.c_str(), path.c_str(), interface, method, question,
                                             G_VARIANT_TYPE(answer), G_DBUS_CALL_FLAGS_NONE, milliseconds,
                                             nullptr, nullptr));
}

bool isYes(const Variant& answer) {
  gboolean yes = false;
  if (answer)
    g_variant_get(answer.get(), "(b)", &yes);
  return yes;
}

GDBusConnection* connectTo(const char* address) {
  constexpr auto asAProgram = static_cast<GDBusConnectionFlags>(
      G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT | G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION);
  auto* bus = address ? g_dbus_connection_new_for_address_sync(address, asAProgram, nullptr, nullptr, nullptr)
                      : nullptr;
  if (!bus)
    throw std::runtime_error("there is no bus to ask about accessibility");
  return bus;
}

GDBusConnection* connect() {
  auto* session = connectTo(g_getenv("DBUS_SESSION_BUS_ADDRESS"));
  const auto answer =
      call(session, "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", nullptr, "(s)");
  g_object_unref(session);
  const char* address = nullptr;
  if (answer)
    g_variant_get(answer.get(), "(&s)", &address);
  return connectTo(address);
}

/// The bus on which assistive programs ask; looked for on first use, when the test's session bus is there.
GDBusConnection* bus() {
  static GDBusConnection* const connection = connect();
  return connection;
}

pid_t processOf(const std::string& program) {
  constexpr auto daemon = "org.freedesktop.DBus";
  const auto answer = call(bus(), daemon, "/org/freedesktop/DBus", daemon, "GetConnectionUnixProcessID",
                           g_variant_new("(s)", program.c_str()), "(u)");
  guint32 id = 0;
  if (answer)
    g_variant_get(answer.get(), "(u)", &id);
  return static_cast<pid_t>(id);
}

} // namespace

Accessible::Accessible(std::string program, std::string path)
    : program_(std::move(program)), path_(std::move(path)) {}

Accessible::Accessible(const Variant& reference) {
  const char* program = nullptr;
  const char* path = nullptr;
  g_variant_get(reference.get(), "(&s&o)", &program, &path);
  program_ = program;
  path_ = path;
}

Variant Accessible::ask(const char* interface, const char* method, const char* answer) const {
  return call(bus(), program_, path_, interface, method, nullptr, answer);
}

Variant Accessible::property(const char* interface, const char* name, const char* type) const {
  const auto answer = call(bus(), program_, path_, "org.freedesktop.DBus.Properties", "Get",
                           g_variant_new("(ss)", interface, name), "(v)");
  GVariant* value = nullptr;
  if (answer)
    g_variant_get(answer.get(), "(v)", &value);
  Variant result(value);
  return result && g_variant_is_of_type(value, G_VARIANT_TYPE(type)) ? std::move(result) : nullptr;
}

std::optional<Accessible> Accessible::ofProcess(pid_t id) {
  for (const auto& application :
       Accessible("org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root").children())
    if (processOf(application.program_) == id)
      return application;
  return std::nullopt;
}

std::string Accessible::name() const {
  const auto name = property(objects, "Name", "s");
  return name ? g_variant_get_string(name.get(), nullptr) : "";
}

AtspiRole Accessible::role() const {
  const auto answer = ask(objects, "GetRole", "(u)");
  guint32 role = ATSPI_ROLE_INVALID;
  if (answer)
    g_variant_get(answer.get(), "(u)", &role);
  return static_cast<AtspiRole>(role);
}

bool Accessible::is(AtspiStateType state) const {
  const auto answer = ask(objects, "GetState", "(au)");
  const Variant words(answer ? g_variant_get_child_value(answer.get(), 0) : nullptr);
  gsize count = 0;
  const auto* bits =
      words ? static_cast<const guint32*>(g_variant_get_fixed_array(words.get(), &count, sizeof(guint32)))
            : nullptr;
  const auto word = static_cast<gsize>(state) / 32;
  return word < count && (bits[word] >> (state % 32) & 1U);
}

std::optional<double> Accessible::value() const {
  const auto value = property("org.a11y.atspi.Value", "CurrentValue", "d");
  return value ? std::optional(g_variant_get_double(value.get())) : std::nullopt;
}

std::vector<Accessible> Accessible::children() const {
  std::vector<Accessible> result;
  const auto answer = ask(objects, "GetChildren", "(a(so))");
  const Variant references(answer ? g_variant_get_child_value(answer.get(), 0) : nullptr);
  for (gsize i = 0; references && i < g_variant_n_children(references.get()); ++i)
    result.push_back(Accessible(Variant(g_variant_get_child_value(references.get(), i))));
  return result;
}

std::optional<Accessible> Accessible::parent() const {
  const auto reference = property(objects, "Parent", "(so)");
  return reference ? std::optional(Accessible(reference)) : std::nullopt;
}

void Accessible::collect(std::vector<Accessible>& found, const Choice& isEntered) const {
  found.push_back(*this);
  if (isEntered(*this))
    for (const auto& child : children())
      child.collect(found, isEntered);
}

std::vector<Accessible> Accessible::all(const Choice& isEntered) const {
  std::vector<Accessible> found;
  collect(found, isEntered);
  return found;
}

std::optional<Accessible> Accessible::find(AtspiRole role, const std::string& name) const {
  for (const auto& object : all())
    if (object.role() == role && object.name() == name)
      return object;
  return std::nullopt;
}

bool Accessible::activate() const {
  return isYes(
      call(bus(), program_, path_, "org.a11y.atspi.Action", "DoAction", g_variant_new("(i)", 0), "(b)"));
}

bool Accessible::grabFocus() const {
  return isYes(ask("org.a11y.atspi.Component", "GrabFocus", "(b)"));
}

std::string describe(const Accessible& object, int depth) {
  std::string result(static_cast<std::size_t>(2 * depth), ' ');
  result += "role " + std::to_string(object.role()) + " \"" + object.name() + "\"";
  for (const auto& [state, word] :
       {std::pair{ATSPI_STATE_FOCUSED, " focused"}, std::pair{ATSPI_STATE_SELECTED, " selected"},
        std::pair{ATSPI_STATE_PRESSED, " pressed"}, std::pair{ATSPI_STATE_CHECKED, " checked"},
        std::pair{ATSPI_STATE_SENSITIVE, " sensitive"}, std::pair{ATSPI_STATE_SHOWING, " showing"},
        std::pair{ATSPI_STATE_VISIBLE, " visible"}})
    if (object.is(state))
      result += word;
  result += '\n';
  for (const auto& child : object.children())
    result += describe(child, depth + 1);
  return result;
}

} // namespace quorvel::e2e
