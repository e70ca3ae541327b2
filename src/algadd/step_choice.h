#pragma once

#include <variant>

#include "algadd/step_arithmetic.h"
#include "algadd/step_plan.h"

namespace kov {

using StepArithmetic =
    std::variant<RealArithmetic<IntegerNumbers>, ComplexArithmetic<IntegerNumbers>,
                 RealArithmetic<DoubleNumbers>, ComplexArithmetic<DoubleNumbers>, CountedArithmetic,
                 QuantityArithmetic>;

/// The fastest arithmetic that certainly gives the bits of the literal reading for all factors and quantities
/// of the plan. Looks at every block, but at no point.
StepArithmetic choose_arithmetic(const StepPlan& plan);

}  // namespace kov
