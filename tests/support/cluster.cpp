#include "tests/support/cluster.h"

#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <exception>
#include <stdexcept>

#include "drivers/odbc/link.h"

namespace brunvik::test {

namespace {

std::string from_environment(const char* name) {
  const char* const value = std::getenv(name);
  if (!value) throw std::runtime_error(std::string(name) + " isn't set: script/test --cluster does that");
  return value;
}

std::vector<std::string> nodes() {
  std::string strings = from_environment("BRUNVIK_TEST_CLUSTER");
  std::vector<std::string> nodes;
  for (std::size_t end = 0; end != std::string::npos;) {
    end = strings.find("||");
    nodes.push_back(strings.substr(0, end));
    strings.erase(0, end == std::string::npos ? end : end + 2);
  }
  return nodes;
}

std::string next_name() {
  static int count = 0;
  return "brunvik_" + std::to_string(getpid()) + "_" + std::to_string(++count);
}

void cluster(const std::string& verb) {
  const std::string command = "'" + from_environment("BRUNVIK_SCRIPTS") + "/cluster' " + verb + " >/dev/null";
  if (std::system(command.c_str()) != 0) throw std::runtime_error("script/cluster " + verb + " failed");
}

// The driver lets no setting through that isn't its own.
void isolate(int node, const std::string& isolated) {
  const odbc::Link link(nodes().at(static_cast<std::size_t>(node - 1)) + ";DATABASE=books", std::chrono::seconds(5));
  link.execute("set global wsrep_provider_options='gmcast.isolate=" + isolated + "'");
}

}  // namespace

ClusterDatabase::ClusterDatabase() : nodes_(nodes()), name_(next_name()) {
  odbc::open(nodes_.front() + ";DATABASE=books")
      ->Execute("create database " + name_ + " character set utf8mb4 collate utf8mb4_uca1400_as_ci");
}

ClusterDatabase::~ClusterDatabase() {
  try {
    odbc::open(nodes_.front() + ";DATABASE=books")->Execute("drop database " + name_);
  } catch (const std::exception&) {
    // The test that left no cluster has failed already, and the database goes with the folder of the nodes.
  }
}

std::string ClusterDatabase::address() const {
  std::string address;
  for (const std::string& node : nodes_) {
    if (!address.empty()) address += "||";
    address += node + ";DATABASE=" + name_;
  }
  return address;
}

std::shared_ptr<odbc::Connection> ClusterDatabase::open_node(int node) const {
  return odbc::open(nodes_.at(static_cast<std::size_t>(node - 1)) + ";DATABASE=" + name_);
}

void kill_node(int node) { cluster("kill " + std::to_string(node)); }

void start_node(int node) { cluster("start " + std::to_string(node)); }

void cut_off_node(int node) { isolate(node, "1"); }

void connect_node(int node) {
  isolate(node, "0");
  start_all_nodes();
}

void start_all_nodes() { cluster("up"); }

}  // namespace brunvik::test
