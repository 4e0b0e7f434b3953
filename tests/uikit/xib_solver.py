"""Solves linear constraints with priorities, strictly: no number of constraints of a lower priority
outweighs one of a higher priority. Tells of contradictions and of anything left undetermined."""

from dataclasses import dataclass

import kiwisolver

REQUIRED = 1000
_TOLERANCE = 1e-6


class Unsatisfiable(Exception):
    """The required constraints contradict each other; names the one that could not be added."""


@dataclass
class Relation:
    """`expression` (a linear expression of variables) compared with zero."""
    name: str
    expression: object
    relation: str  # equal, lessThanOrEqual, greaterThanOrEqual
    priority: int = REQUIRED


class Solver:
    def __init__(self, relations):
        self._solver = kiwisolver.Solver()
        for relation in relations:
            if relation.priority >= REQUIRED:
                self._require(relation)
        optional = {relation.priority for relation in relations if relation.priority < REQUIRED}
        for priority in sorted(optional, reverse=True):
            self._prefer([relation for relation in relations if relation.priority == priority])
        self._solver.updateVariables()

    def _require(self, relation):
        expression = relation.expression
        constraint = {'equal': expression == 0, 'lessThanOrEqual': expression <= 0,
                      'greaterThanOrEqual': expression >= 0}[relation.relation]
        try:
            self._solver.addConstraint(constraint)
        except kiwisolver.UnsatisfiableConstraint:
            raise Unsatisfiable(relation.name) from None

    def _prefer(self, relations):
        """Keeps the sum of the misses of one priority at the least that the higher ones allow."""
        misses = []
        for relation in relations:
            over = kiwisolver.Variable(f'{relation.name} over')
            under = kiwisolver.Variable(f'{relation.name} under')
            self._solver.addConstraint(over >= 0)
            self._solver.addConstraint(under >= 0)
            self._solver.addConstraint(relation.expression - over + under == 0)
            misses += [over] if relation.relation != 'greaterThanOrEqual' else []
            misses += [under] if relation.relation != 'lessThanOrEqual' else []
        wishes = [(miss == 0) | 'strong' for miss in misses]
        for wish in wishes:
            self._solver.addConstraint(wish)
        self._solver.updateVariables()
        least = sum(miss.value() for miss in misses)
        for wish in wishes:
            self._solver.removeConstraint(wish)
        total = misses[0] * 1.0
        for miss in misses[1:]:
            total = total + miss
        self._solver.addConstraint(total <= least + _TOLERANCE)

    def undetermined(self, variables, push=16.0, moved=0.01):
        """Those variables that give way to a push in either direction although every constraint is
        kept as well as before: their values are not settled by the constraints. The variables'
        values are of no use afterwards."""
        loose = []
        for variable, value in [(variable, variable.value()) for variable in variables]:
            for target in (value - push, value + push):
                wish = (variable == target) | 'weak'
                self._solver.addConstraint(wish)
                self._solver.updateVariables()
                gave_way = abs(variable.value() - value) > moved
                self._solver.removeConstraint(wish)
                if gave_way:
                    loose.append(variable)
                    break
        return loose
