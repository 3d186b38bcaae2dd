// Connection strings: several in one, what stands in braces, and passwords, which nobody sees.
#include <gtest/gtest.h>

#include "drivers/odbc/address.h"

namespace brunvik::odbc {
namespace {

using Strings = std::vector<std::string>;

TEST(OdbcAddress, Names_servers_with_two_strokes_between_them) {
  EXPECT_EQ(servers_of("DSN=a||DSN=b || DSN=c;UID=x"), (Strings{"DSN=a", "DSN=b", "DSN=c;UID=x"}));
  EXPECT_EQ(servers_of("DSN=a"), Strings{"DSN=a"});
  EXPECT_EQ(servers_of("DSN=a||"), Strings{"DSN=a"});
  EXPECT_EQ(servers_of(" || "), Strings{});
  EXPECT_EQ(servers_of("DSN=a|b"), Strings{"DSN=a|b"});
}

TEST(OdbcAddress, Ends_a_value_in_braces_at_its_brace_alone) {
  EXPECT_EQ(servers_of("DSN=a;PWD={x||y;}||DSN=b"), (Strings{"DSN=a;PWD={x||y;}", "DSN=b"}));
  EXPECT_EQ(servers_of("DSN=a;PWD={x}}||y}||DSN=b"), (Strings{"DSN=a;PWD={x}}||y}", "DSN=b"}));
  EXPECT_EQ(servers_of("DSN=a;PWD={x||y"), Strings{"DSN=a;PWD={x||y"});
}

TEST(OdbcAddress, Takes_a_password_that_it_lacks_whatever_that_holds) {
  EXPECT_EQ(with_password("DSN=a;UID=u", "p;q"), "DSN=a;UID=u;PWD={p;q}");
  EXPECT_EQ(with_password("DSN=a;UID=u;", "p}q{"), "DSN=a;UID=u;PWD={p}}q{}");
  EXPECT_EQ(with_password("DSN=a;pwd=own", "other"), "DSN=a;pwd=own");
  EXPECT_EQ(with_password("DSN=a;Password=own", "other"), "DSN=a;Password=own");
  EXPECT_EQ(with_password("DSN=a", ""), "DSN=a");
}

TEST(OdbcAddress, Is_shown_without_its_password) {
  EXPECT_EQ(without_password("DSN=a;UID=u;PWD=secret"), "DSN=a;UID=u;PWD=***");
  EXPECT_EQ(without_password("DSN=a; pwd = {se;cr}}et} ;UID=u"), "DSN=a;pwd=***;UID=u");
  EXPECT_EQ(without_password("DSN=a;PASSWORD={secret"), "DSN=a;PASSWORD=***");
  EXPECT_EQ(without_password("DSN=a;UID=u"), "DSN=a;UID=u");
}

TEST(OdbcAddress, Keeps_its_password_out_of_any_text) {
  EXPECT_EQ(without_password_of("DSN=a;PWD=secret", "no secret here, secret"), "no *** here, ***");
  EXPECT_EQ(without_password_of("DSN=a;PWD={se;cret}", "neither se;cret nor {se;cret}"), "neither *** nor ***");
  EXPECT_EQ(without_password_of("DSN=a;PWD={se}}cret}", "nor se}cret"), "nor ***");
  EXPECT_EQ(without_password_of("DSN=a;PWD={secret", "nor secret"), "nor ***");
  EXPECT_EQ(without_password_of("DSN=a;PWD=", "nothing to hide"), "nothing to hide");
  EXPECT_EQ(without_password_of("DSN=a;PWD={}", "nothing to hide"), "nothing to hide");
}

TEST(OdbcAddress, Takes_a_value_for_a_keyword_that_it_does_not_name) {
  EXPECT_EQ(with_default("DSN=a", "OPTION", "2"), "DSN=a;OPTION=2");
  EXPECT_EQ(with_default("DSN=a;option=0", "OPTION", "2"), "DSN=a;option=0");
  EXPECT_EQ(with_default("DSN=a;PWD={;OPTION=0}", "OPTION", "2"), "DSN=a;PWD={;OPTION=0};OPTION=2");
}

}  // namespace
}  // namespace brunvik::odbc
