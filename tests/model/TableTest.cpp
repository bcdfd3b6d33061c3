#include "model/Table.h"
#include "textio/RaisedCode.h"
#include "textio/RuntimeError.h"

#include <gtest/gtest.h>

namespace vorlex {
namespace {

using testing_support::raisedCode;

// Tables of every size the model has: from the heap (a few kilobytes), of
// pages of their own (an age-by-stage matrix), and of several large pages
// (the sizes of every age by day).
struct TableSize {
  int rows;
  int columns;
};
constexpr TableSize kSizes[] = {{20, 2}, {1005, 12}, {1005, 1005}};

TEST(Table, StartsAtZeroAndKeepsWhatIsWrittenEverywhere) {
  for (const auto [rows, columns] : kSizes) {
    Table2<double> table(rows, columns);
    EXPECT_EQ(table(0, 0), 0.0);
    EXPECT_EQ(table(rows, columns), 0.0);
    EXPECT_EQ(table(rows / 2, columns / 2), 0.0);
    table(0, 0) = 1.5;
    table(rows, columns) = -2.5;
    table(rows / 2, columns / 2) = 3;
    // Large pages asked for rows already written keep what they hold.
    table.expectWritesUpTo(rows);
    EXPECT_EQ(table(0, 0), 1.5) << rows;
    EXPECT_EQ(table(rows, columns), -2.5) << rows;
    EXPECT_EQ(table(rows / 2, columns / 2), 3) << rows;
    EXPECT_EQ(table(rows, 0), 0.0) << rows;
  }
}

TEST(Table, CopiesAreTablesOfTheirOwn) {
  for (const auto [rows, columns] : kSizes) {
    Table2<double> table(rows, columns);
    table(rows, columns) = 7;
    Table2<double> copy(table);
    copy(rows, columns) = 8;
    EXPECT_EQ(table(rows, columns), 7) << rows;
    EXPECT_EQ(copy(rows, columns), 8) << rows;
    table = copy;
    EXPECT_EQ(table(rows, columns), 8) << rows;
    EXPECT_EQ(table(0, 0), 0.0) << rows;
  }
}

TEST(Table, IndexOutsideTheBoundsStopsWithSubscriptOutOfRange) {
  for (const auto& size : kSizes) {
    const int rows = size.rows, columns = size.columns;
    Table2<double> table(rows, columns);
    EXPECT_EQ(raisedCode([&] { table(rows + 1, 0) = 1; }), static_cast<int>(ErrorCode::SubscriptOutOfRange));
    EXPECT_EQ(raisedCode([&] { table(0, columns + 1) = 1; }), static_cast<int>(ErrorCode::SubscriptOutOfRange));
    EXPECT_EQ(raisedCode([&] { table(-1, 0) = 1; }), static_cast<int>(ErrorCode::SubscriptOutOfRange));
  }
}

TEST(Table, KeptColumnByColumnEachColumnLiesInOnePiece) {
  for (const auto& size : kSizes) {
    const int rows = size.rows, columns = size.columns;
    Table2<double> table(Layout::ColumnByColumn, rows, columns);
    table(rows, columns) = 4;
    table(1, 0) = 5;
    EXPECT_EQ(&table(rows, 1), &table(0, 1) + rows) << rows;
    EXPECT_EQ(&table(0, 1), &table(rows, 0) + 1) << rows;
    table.expectWritesUpTo(columns);
    EXPECT_EQ(table(rows, columns), 4) << rows;
    EXPECT_EQ(table(1, 0), 5) << rows;
    EXPECT_EQ(table(0, 1), 0.0) << rows;
    EXPECT_EQ(raisedCode([&] { table(rows + 1, 0) = 1; }), static_cast<int>(ErrorCode::SubscriptOutOfRange));
    EXPECT_EQ(raisedCode([&] { table(0, columns + 1) = 1; }), static_cast<int>(ErrorCode::SubscriptOutOfRange));
  }
}

TEST(Table, NarrowedRowsAreOutOfRangeAndColumnsShorter) {
  Table2<double> table(Layout::ColumnByColumn, 1005, 1005);
  table.narrowRowsTo(60);
  EXPECT_EQ(table.upper(0), 60);
  EXPECT_EQ(table.upper(1), 1005);
  EXPECT_EQ(&table(0, 1), &table(60, 0) + 1);
  table(60, 1005) = 2;
  EXPECT_EQ(table(60, 1005), 2);
  EXPECT_EQ(raisedCode([&] { table(61, 0) = 1; }), static_cast<int>(ErrorCode::SubscriptOutOfRange));
  EXPECT_EQ(raisedCode([&] { table.narrowRowsTo(61); }), static_cast<int>(ErrorCode::SubscriptOutOfRange));
}

} // namespace
} // namespace vorlex
