#pragma once

#include <variant>

#include "algadd/counted_arithmetic.h"
#include "algadd/fraction_arithmetic.h"
#include "algadd/linear_arithmetic.h"
#include "algadd/quantity_arithmetic.h"
#include "algadd/step_plan.h"

namespace kov {

/// The ways in which a step computes. Each gives the bits of AddLpairToLmap_1, under a condition that
/// choose_arithmetic proves before the step. They have in common:
///
///   Sum        what gathers in one destination; a new one is an absent point
///   Factor     p of an entry, made ready
///   Values     the quantities of a piece of a source block, to be read by index
///   product    Factor times one of the Values
///   add        Sum += product, where a sum that reaches zero is an absent point again
///   columns    the parts of many sums, none of them absent; throws floating_overflow when one is not finite
///   Room       memory of one thread for Values that do not stand in the columns
///   Prepared   in some instead: a source block made ready, once a step for all terms
///   for_each_product   in some: all products of a piece, faster than one by one
///   add_products       in some: all products of a piece added to their cells
using StepArithmetic =
    std::variant<RealArithmetic<IntegerNumbers>, ComplexArithmetic<IntegerNumbers>,
                 RealArithmetic<DoubleNumbers>, ComplexArithmetic<DoubleNumbers>, CountedRealArithmetic,
                 CountedComplexArithmetic, FractionArithmetic, QuantityArithmetic>;

/// The fastest arithmetic that certainly gives the bits of AddLpairToLmap_1 for all factors and quantities
/// of the plan. Looks at the forms of every block's columns, at no point.
StepArithmetic choose_arithmetic(const StepPlan& plan);

}  // namespace kov
