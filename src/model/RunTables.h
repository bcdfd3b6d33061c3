#pragma once

namespace vorlex {

struct Model;

/// Tells the tables that every projection of the table in hand fills (or
/// reads whole, as day 0 reads the consumption) how far it will use them,
/// once its last age, its stages and the simulation time are known: the
/// system then hands over their memory in one go instead of a page at each
/// first use, and the ages of each day lie in one piece. A matter of speed
/// only: a table left out is served page by page as before.
/// The sizes of the ages of each day are among them when the session keeps
/// them.
void expectTablesOfTheRun(Model& m, bool keepsAgeSizes);

} // namespace vorlex
