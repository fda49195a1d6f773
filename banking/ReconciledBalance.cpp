#include <banking/ReconciledBalance.hpp>

#include <QDebug>

namespace orv::banking {

QDebug operator<<(QDebug debug, ReconciledBalance const& balance)
{
  return debug << "Balance (" << balance.balance << "), Occurred On (" << balance.occurredOn << ')';
}

} // namespace orv::banking
