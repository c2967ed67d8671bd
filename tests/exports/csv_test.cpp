// SPDX-License-Identifier: GPL-3.0-or-later
#include "exports/csv.h"

#include <gtest/gtest.h>

namespace vicetoll {
namespace {

TEST(Csv, QuotesFieldsThatNeedIt) {
  const ExportTable table{"T",
                          {{"plain"}, {"with, comma"}},
                          {{ExportCell("say \"so\""), ExportCell("two\r\nlines")}, {ExportCell("\x80")}},
                          false};
  EXPECT_EQ(CsvOf(table),
            "plain,\"with, comma\"\r\n"
            "\"say \"\"so\"\"\",\"two\r\nlines\"\r\n"
            "\xE2\x82\xAC,\r\n");
}

TEST(Csv, AmountsHaveTwoDecimalsAndNoSymbol) {
  ExportTable table{"T", {{"a", CellKind::Money}, {"n", CellKind::Whole}, {"m", CellKind::Month}}, {}, false};
  const auto line = [&](double amount, double whole, std::string_view month) {
    table.rows = {{ExportCell(amount), ExportCell(whole), ExportCell(month)}};
    const std::string text = CsvOf(table);
    return text.substr(text.find('\n') + 1);
  };
  EXPECT_EQ(line(1234567.005, 12, "Jun - 2031"), "1234567.01,12,2031-06\r\n");
  EXPECT_EQ(line(-2.5, 0, "Dec - 1999"), "-2.50,0,1999-12\r\n");
  EXPECT_EQ(line(-0.001, -0.0, "Jan - 2000"), "0.00,0,2000-01\r\n");
}

TEST(Csv, WhatIsNotThereIsAnEmptyField) {
  const ExportTable table{"T", {{"a", CellKind::Money}, {"b", CellKind::Money}}, {{ExportCell()}, {}}, false};
  EXPECT_EQ(CsvOf(table), "a,b\r\n,\r\n,\r\n");
}

}  // namespace
}  // namespace vicetoll
