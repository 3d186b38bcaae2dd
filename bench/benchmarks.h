// The benchmarks. Each compares contenders that do the same work in turns within one run, so that the noise of the
// machine falls on all of them, and gives the ratio of their times as counters.
#pragma once

namespace brunvik::bench {

// The resident size of a process that loads, walks and saves ten thousand bills. To be run first, while the process
// is small.
void register_resident_size();

// GetSqlVal against the same text appended by hand.
void register_values();

// A verb against a replay of the statements that it sends.
void register_library_share();

// The driver against plain SQLite, given the same statements as text and as prepared statements.
void register_driver();

// Library, replay and prepared statements in instructions; only where the program runs in callgrind.
void register_counts();

// The same verbs at a thousand and at a million bills.
void register_growth();

// The verbs of the other families, each with a thousand and with a million bills in its tables.
void register_family_growth();

// One user and eight, each a process of its own, on one SQLite file; on a server and on a cluster, where
// BRUNVIK_BENCH_MARIADB or BRUNVIK_BENCH_CLUSTER has its connection string, or those of its nodes, without a database.
void register_clients();

// The library and the driver on a server, and the growth of books there; where there is one, BRUNVIK_BENCH_MARIADB.
void register_servers();

// How many documents a second SQLite, a server and a cluster take, durable; where there is one, BRUNVIK_BENCH_MARIADB
// or BRUNVIK_BENCH_CLUSTER.
void register_documents();

}  // namespace brunvik::bench
