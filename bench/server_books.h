// Books on the server that the benchmarks were given, the same as those in a file.
#pragma once

#include <string>

namespace brunvik::bench {

// The connection strings of BRUNVIK_BENCH_MARIADB, one server, and BRUNVIK_BENCH_CLUSTER, all its nodes: of a user with
// all rights, without a database. Empty where there is none.
std::string mariadb_server();
std::string cluster_servers();

// A database of its own, which is dropped when the object goes.
class ServerBooks {
 public:
  // Copies the books of a file, table by table.
  ServerBooks(std::string server, const std::string& path);
  ~ServerBooks();
  ServerBooks(const ServerBooks&) = delete;
  ServerBooks& operator=(const ServerBooks&) = delete;

  // The connection string with the database, of each server.
  std::string address() const;

 private:
  void copy_from(const std::string& path) const;

  std::string servers_;
  std::string name_;
};

// Waits until a server has carried to the disk, and cleared away, what it was given before: that is work of the laying,
// and would be measured with the verbs.
void settle(const std::string& server);

// Whether a commit waits for the disk, on the server and for all its connections.
enum class Commit { durable, once_a_second };
void set_commit(const std::string& server, Commit commit);

}  // namespace brunvik::bench
