#include "e2e/stage/ClientTest.h"
#include "torture/torture.h"

#include <list>

namespace quorvel::e2e {
namespace {

namespace fs = std::filesystem;

/// A site on a port of its own, and whether a page of it may come to be shown.
struct Site {
  std::string name;
  bool isTrusted;
  std::string certificate = name;
  /// What its TLS speaks; whatever the system's library does where nothing is said.
  std::string tls = {};
};

std::string onlyTls(const std::string& version) {
  return "NORMAL:%COMPAT:-VERS-ALL:+VERS-TLS" + version;
}

const std::vector<Site> sites = {
    {"good", true},
    {"tls-1.3", true, "good", onlyTls("1.3")},
    {"tls-1.2", true, "good", onlyTls("1.2")},
    {"tls-1.1", false, "good", onlyTls("1.1")},
    {"tls-1.0", false, "good", onlyTls("1.0")},
    {"expired", false},
    {"not-yet-valid", false},
    {"other-name", false},
    {"self-signed", false},
    {"issued-by-a-stranger", false},
    {"issued-by-no-authority", false},
    {"signed-with-sha1", false},
    {"short-key", false},
};

class CertificateTorture : public ClientTest {
 protected:
  CertificateTorture() {
    fs::create_directories(folder_);
    outputOf({QUORVEL_MAKE_CERTIFICATES, std::getenv("QUORVEL_NETWORK"), folder_,
              origin.substr(std::string("https://").size())});
    for (const auto& site : sites)
      open(site);
  }
  ~CertificateTorture() override { fs::remove_all(folder_); }

  static int portOf(const Site& site) { return 7001 + static_cast<int>(&site - sites.data()); }
  fs::path logOf(const Site& site) const { return folder_ / (site.name + ".log"); }
  /// Whether the site was asked for anything.
  bool isReached(const Site& site) const { return !ServiceLog(logOf(site)).requests().empty(); }

  /// A page that asks each site for something and reports whether it came.
  static std::string pageThatAsks() {
    std::string script =
        "const ask = (name, port) => fetch(`" + origin +
        ":${port}/pricing.html`,"
        " {mode: 'no-cors'}).then(() => report(name + '=shown'), () => report(name + '=refused'));";
    for (const auto& site : sites)
      script += "ask('" + site.name + "', " + std::to_string(portOf(site)) + ");";
    return "<script>" + script + "</script>";
  }

 private:
  void open(const Site& site) {
    const auto log = folder_ / (site.name + ".said");
    services_.emplace_back(
        Arguments{QUORVEL_DEMO_SERVICE, "--port", std::to_string(portOf(site)), "--pages", QUORVEL_OWN_PAGES,
                  "--log", logOf(site), "--certificate", folder_ / (site.certificate + ".pem"), "--key",
                  folder_ / (site.certificate + ".key")},
        site.tls.empty() ? Environment{} : Environment{{"G_TLS_GNUTLS_PRIORITY", site.tls}}, log);
    EXPECT_TRUE(eventually([&] { return fs::exists(log) && fs::file_size(log) > 0; })) << site.name;
  }

  const fs::path folder_ = stage.folder() / "tmp" / "certificates";
  std::list<ChildProcess> services_;
};

TEST_F(CertificateTorture, NoSiteIsAskedForAnythingThatCannotProveWhoItIs) {
  stage.servePage("agent.html", pageThatAsks());
  start();
  for (const auto& site : sites) {
    EXPECT_TRUE(eventually([&] { return stage.reports(); },
                           Contains(site.name + (site.isTrusted ? "=shown" : "=refused"))));
    figure(site.name, isReached(site) ? " is reached" : " is asked for nothing");
    EXPECT_EQ(isReached(site), site.isTrusted);
  }
}

} // namespace
} // namespace quorvel::e2e
