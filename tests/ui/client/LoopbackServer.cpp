#include "ui/client/LoopbackServer.h"

#include <algorithm>
#include <glibmm/main.h>
#include <memory>
#include <stdexcept>

namespace quorvel {
namespace {

std::string header(SoupServerMessage* message, const char* name) {
  const char* value = soup_message_headers_get_one(soup_server_message_get_request_headers(message), name);
  return value ? value : "";
}

void respond(SoupServerMessage* message, const std::string& html) {
  soup_server_message_set_status(message, SOUP_STATUS_OK, nullptr);
  soup_server_message_set_response(message, "text/html; charset=utf-8", SOUP_MEMORY_COPY, html.data(),
                                   html.size());
}

} // namespace

LoopbackServer::LoopbackServer() : server_(soup_server_new(nullptr, nullptr)) {
  const auto handler = +[](SoupServer*, SoupServerMessage* message, const char* path, GHashTable*,
                           gpointer self) { static_cast<LoopbackServer*>(self)->handle(message, path); };
  soup_server_add_handler(server_.get(), nullptr, handler, this, nullptr);
  if (!soup_server_listen_local(server_.get(), 0, SOUP_SERVER_LISTEN_IPV4_ONLY, nullptr))
    throw std::runtime_error("the test's web server cannot listen");
  GSList* uris = soup_server_get_uris(server_.get());
  port_ = static_cast<guint>(g_uri_get_port(static_cast<GUri*>(uris->data)));
  g_slist_free_full(uris, reinterpret_cast<GDestroyNotify>(g_uri_unref));
}

LoopbackServer::~LoopbackServer() {
  soup_server_disconnect(server_.get());
}

std::string LoopbackServer::address(const std::string& path, const std::string& host) const {
  return "http://" + host + ":" + std::to_string(port_) + path;
}

void LoopbackServer::page(const std::string& path, const std::string& html) {
  answer(path, [html](SoupServerMessage* message) { respond(message, html); });
}

void LoopbackServer::slowPage(const std::string& path, const std::string& html,
                              std::chrono::milliseconds delay) {
  answer(path, [html, delay](SoupServerMessage* message) {
    soup_server_message_pause(message);
    const std::shared_ptr<SoupServerMessage> kept(SOUP_SERVER_MESSAGE(g_object_ref(message)), g_object_unref);
    Glib::signal_timeout().connect_once(
        [html, kept] {
          respond(kept.get(), html);
          soup_server_message_unpause(kept.get());
        },
        static_cast<unsigned>(delay.count()));
  });
}

void LoopbackServer::redirect(const std::string& path, const std::string& target) {
  answer(path, [target](SoupServerMessage* message) {
    soup_server_message_set_redirect(message, SOUP_STATUS_FOUND, target.c_str());
  });
}

void LoopbackServer::silence(const std::string& path) {
  answer(path, [](SoupServerMessage* message) { soup_server_message_pause(message); });
}

void LoopbackServer::hangUpInMidBody(const std::string& path) {
  answer(path, [](SoupServerMessage* message) {
    respond(message, "<title>Half</title><p>half a page");
    auto* headers = soup_server_message_get_response_headers(message);
    soup_message_headers_set_content_length(headers, 100000);
    const auto hangUp = +[](SoupServerMessage* sent, gpointer) {
      g_socket_close(soup_server_message_get_socket(sent), nullptr);
    };
    g_signal_connect(message, "wrote-chunk", G_CALLBACK(hangUp), nullptr);
  });
}

int LoopbackServer::count(const std::string& path) const {
  return static_cast<int>(std::ranges::count(requests_, path, &Request::path));
}

void LoopbackServer::handle(SoupServerMessage* message, const char* path) {
  soup_message_headers_append(soup_server_message_get_response_headers(message), "Cache-Control", "no-store");
  requests_.push_back({path, header(message, "User-Agent"), header(message, "Cookie")});
  const auto found = answers_.find(path);
  if (found == answers_.end())
    soup_server_message_set_status(message, SOUP_STATUS_NOT_FOUND, nullptr);
  else
    found->second(message);
}

} // namespace quorvel
