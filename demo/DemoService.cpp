#include "DemoService.h"

#include "StagedReplies.h"
#include "respond.h"

#include <stdexcept>

namespace quorvel::demo {
namespace {

[[noreturn]] void fail(const std::string& what, GError* error) {
  const std::string sentence = what + ": " + error->message;
  g_error_free(error);
  throw std::runtime_error(sentence);
}

SoupServer* makeServer(const ServiceOptions& options) {
  GError* error = nullptr;
  const auto certificate =
      g_tls_certificate_new_from_files(options.certificate.c_str(), options.key.c_str(), &error);
  if (!certificate)
    fail("cannot use the certificate " + options.certificate + " with the key " + options.key, error);
  const auto server = soup_server_new("tls-certificate", certificate, nullptr);
  g_object_unref(certificate);
  return server;
}

void listen(SoupServer* server, const ServiceOptions& options) {
  const auto where = options.address + ":" + std::to_string(options.port);
  const auto address = g_inet_socket_address_new_from_string(options.address.c_str(), options.port);
  if (!address)
    throw std::runtime_error("cannot listen on " + where + ": this is no network address");
  GError* error = nullptr;
  const bool listening = soup_server_listen(server, address, SOUP_SERVER_LISTEN_HTTPS, &error);
  g_object_unref(address);
  if (!listening)
    fail("cannot listen on " + where, error);
}

std::string header(SoupServerMessage* message, const char* name) {
  const auto value = soup_message_headers_get_one(soup_server_message_get_request_headers(message), name);
  return value ? value : "";
}

LoggedRequest describe(SoupServerMessage* message) {
  const auto uri = soup_server_message_get_uri(message);
  const auto query = g_uri_get_query(uri);
  return {soup_server_message_get_method(message), header(message, "Host"),
          std::string(g_uri_get_path(uri)) + (query ? std::string("?") + query : ""),
          header(message, "User-Agent"), header(message, "Cookie")};
}

} // namespace

DemoService::DemoService(const ServiceOptions& options)
    : pages_(options.pageFolders), log_(options.log), server_(makeServer(options)) {
  soup_server_add_handler(server_.get(), nullptr, onRequest, this, nullptr);
  listen(server_.get(), options);
}

void DemoService::onRequest(SoupServer*, SoupServerMessage* message, const char* path, GHashTable* query,
                            gpointer service) {
  static_cast<DemoService*>(service)->answer(message, path, query);
}

void DemoService::answerNotFound(SoupServerMessage* message) {
  const auto page = pages_.find("/404.html");
  respond(message, SOUP_STATUS_NOT_FOUND, "text/html; charset=utf-8",
          page ? page->content : "<!doctype html><title>Not found</title><h1>There is no such page</h1>");
}

void DemoService::answer(SoupServerMessage* message, const std::string& path, GHashTable* query) {
  log_.write(describe(message));
  if (const auto reply = stagedReply(path))
    reply(message, query);
  else if (const auto page = pages_.find(path))
    respond(message, SOUP_STATUS_OK, page->mediaType, page->content);
  else
    answerNotFound(message);
}

} // namespace quorvel::demo
