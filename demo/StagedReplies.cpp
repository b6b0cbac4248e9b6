#include "StagedReplies.h"

#include "respond.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdlib>
#include <string>
#include <sys/socket.h>
#include <utility>

namespace quorvel::demo {
namespace {

constexpr auto sessionCookie = "quorvel_session=demo; Path=/; Secure; HttpOnly; SameSite=Lax; Max-Age=";
constexpr int thirtyDays = 30 * 24 * 60 * 60;
/// Bytes of an answer that a browser may wait for before it tells what it is.
constexpr std::size_t sniffed = 1024;

std::string parameter(GHashTable* query, const char* name, const char* otherwise) {
  const auto value = query ? static_cast<const char*>(g_hash_table_lookup(query, name)) : nullptr;
  return value ? value : otherwise;
}

/// The parameter as a number from `least` to `most`; anything else counts as `least`.
unsigned number(GHashTable* query, const char* name, unsigned least, unsigned most) {
  const auto text = parameter(query, name, "");
  unsigned value = least;
  std::from_chars(text.data(), text.data() + text.size(), value);
  return std::clamp(value, least, most);
}

void goOn(SoupServerMessage* message, const std::string& address) {
  respond(message, SOUP_STATUS_SEE_OTHER);
  soup_message_headers_replace(soup_server_message_get_response_headers(message), "Location",
                               address.c_str());
}

void setSessionCookie(SoupServerMessage* message, int seconds) {
  soup_message_headers_append(soup_server_message_get_response_headers(message), "Set-Cookie",
                              (sessionCookie + std::to_string(seconds)).c_str());
}

void signIn(SoupServerMessage* message, GHashTable*) {
  setSessionCookie(message, thirtyDays);
  goOn(message, "/agent.html?source=mac_app");
}

void signOut(SoupServerMessage* message, GHashTable*) {
  setSessionCookie(message, 0);
  goOn(message, "/sign-in.html");
}

void takeNote(SoupServerMessage* message, GHashTable*) {
  respond(message, SOUP_STATUS_NO_CONTENT);
}

void answerWithStatus(SoupServerMessage* message, GHashTable* query) {
  const auto code = number(query, "code", SOUP_STATUS_OK, 599);
  if (code == SOUP_STATUS_NO_CONTENT)
    respond(message, code);
  else
    respond(message, code, "text/html; charset=utf-8",
            "<!doctype html><title>Status</title>" + std::to_string(code));
}

void redirect(SoupServerMessage* message, GHashTable* query) {
  goOn(message, parameter(query, "to", "/"));
}

void append(SoupServerMessage* message, const std::string& text) {
  soup_message_body_append(soup_server_message_get_response_body(message), SOUP_MEMORY_COPY, text.data(),
                           text.size());
}

/// Starts an answer whose length is not known yet; what is appended later goes out with unpause.
void beginChunked(SoupServerMessage* message) {
  soup_server_message_set_status(message, SOUP_STATUS_OK, nullptr);
  const auto headers = soup_server_message_get_response_headers(message);
  soup_message_headers_set_encoding(headers, SOUP_ENCODING_CHUNKED);
  soup_message_headers_set_content_type(headers, "text/html; charset=utf-8", nullptr);
}

/// One slow answer; lives until it has said everything or its client has gone.
struct Drip {
  SoupServerMessage* message;
  unsigned left;
  unsigned timer = 0;
};

gboolean letDrip(gpointer data) {
  auto& drip = *static_cast<Drip*>(data);
  const bool done = drip.left == 0;
  if (done)
    soup_message_body_complete(soup_server_message_get_response_body(drip.message));
  else
    append(drip.message, "<p>" + std::to_string(drip.left--) + " more to come.</p>\n");
  soup_server_message_unpause(drip.message);
  if (done)
    drip.timer = 0;
  return done ? G_SOURCE_REMOVE : G_SOURCE_CONTINUE;
}

void endDrip(SoupServerMessage*, gpointer data) {
  const auto drip = static_cast<Drip*>(data);
  g_clear_handle_id(&drip->timer, g_source_remove);
  delete drip;
}

void drip(SoupServerMessage* message, GHashTable* query) {
  beginChunked(message);
  append(message, "<!doctype html><title>Taking its time</title><h1>Taking its time</h1>\n");
  const auto drip = new Drip{message, number(query, "seconds", 1, 3600)};
  drip->timer = g_timeout_add_seconds(1, letDrip, drip);
  g_signal_connect(message, "finished", G_CALLBACK(endDrip), drip);
}

void offerFile(SoupServerMessage* message, GHashTable* query) {
  if (parameter(query, "seconds", "").empty())
    respond(message, SOUP_STATUS_OK, "application/octet-stream", "The brief of the day.\n");
  else {
    drip(message, query);
    append(message, std::string(sniffed, '\n'));
  }
  GHashTable* parameters = soup_header_parse_param_list("");
  const auto name = parameter(query, "name", "brief.txt");
  g_hash_table_insert(parameters, g_strdup("filename"), g_strdup(name.c_str()));
  soup_message_headers_set_content_disposition(soup_server_message_get_response_headers(message),
                                               "attachment", parameters);
  soup_header_free_param_list(parameters);
}

void resetConnection(SoupServerMessage* message, guint, gpointer) {
  const int socket = g_socket_get_fd(soup_server_message_get_socket(message));
  const linger resetOnClose{1, 0};
  ::setsockopt(socket, SOL_SOCKET, SO_LINGER, &resetOnClose, sizeof resetOnClose);
  g_socket_close(soup_server_message_get_socket(message), nullptr);
}

void cutOff(SoupServerMessage* message, GHashTable*) {
  beginChunked(message);
  append(message, "<!doctype html><title>Cut off</title><h1>There was more</h1>\n");
  g_signal_connect(message, "wrote-body-data", G_CALLBACK(resetConnection), nullptr);
}

void staySilent(SoupServerMessage* message, GHashTable*) {
  soup_server_message_pause(message);
}

constexpr std::array<std::pair<std::string_view, StagedReply>, 9> replies{{
    {"/sign-in", signIn},
    {"/sign-out", signOut},
    {"/report", takeNote},
    {"/status", answerWithStatus},
    {"/redirect", redirect},
    {"/download", offerFile},
    {"/slow", drip},
    {"/silent", staySilent},
    {"/cut-off", cutOff},
}};

} // namespace

StagedReply stagedReply(std::string_view path) {
  const auto found =
      std::find_if(replies.begin(), replies.end(), [&](const auto& reply) { return reply.first == path; });
  return found == replies.end() ? nullptr : found->second;
}

} // namespace quorvel::demo
