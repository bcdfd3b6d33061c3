#include "model/DensityMortality.h"

#include "model/Arithmetic.h"
#include "model/Session.h"

namespace vorlex {

void WorkOutDensityMortality(Session& session, int t) {
  Model& m = session.model();
  const double weighed = m.WeighedSize(t);
  const double capacity = m.CarryingCapacity(t);
  m.SizeToK(t) = divide(weighed, capacity);
  if (weighed <= capacity)
    m.DensityMortality(t) = divide(m.DensityCoefBelowKDay(t) * weighed, capacity);
  else
    m.DensityMortality(t) = divide(m.DensityCoefOverKDay(t) * (weighed - capacity), weighed);
}

bool carryingCapacityInForce(const Session& session) {
  const std::string& flag = session.flags.WithCarryingCapacity;
  if (flag == "Yes")
    return true;
  if (flag == "No")
    return false;
  throw ProgramEnd("The carrying-capacity setting is neither \"Yes\" nor \"No\": \"" + flag + "\".");
}

} // namespace vorlex
