// The three nodes that a run of the tests on a cluster was given, and the script that kills them and starts them again.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "drivers/odbc/connection.h"

namespace brunvik::test {

// A database of its own on all three nodes, which is dropped when the object goes; then, and while it is made, all
// nodes have to run. Nodes count from 1.
class ClusterDatabase {
 public:
  ClusterDatabase();
  ~ClusterDatabase();
  ClusterDatabase(const ClusterDatabase&) = delete;
  ClusterDatabase& operator=(const ClusterDatabase&) = delete;

  // The connection strings of all nodes, in their order.
  std::string address() const;
  std::shared_ptr<odbc::Connection> open() const { return odbc::open(address()); }
  // A connection to one node alone.
  std::shared_ptr<odbc::Connection> open_node(int node) const;

 private:
  std::vector<std::string> nodes_;
  std::string name_;
};

// Ends a node at once, as a power cut would.
void kill_node(int node);

// Starts a node, and waits until it holds what the others hold.
void start_node(int node);

// Takes a node away from the others, as a cable that breaks would; its clients still reach it.
void cut_off_node(int node);

// Brings it back, and waits until all are one cluster again.
void connect_node(int node);

// Starts all nodes that don't run.
void start_all_nodes();

}  // namespace brunvik::test
