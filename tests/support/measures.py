# SPDX-License-Identifier: GPL-3.0-or-later
"""Figures of measures, plainly. A list of records is one of pairs (weight, value); without weights
each weight is 1. A figure that there is none of is None."""
import fractions
import math


def add(values):
    values = list(values)
    return sum(values) if all(isinstance(v, int) for v in values) else math.fsum(values)


def total(pairs):
    return add(w * x for w, x in pairs)


def mean(pairs):
    weights = add(w for w, _ in pairs)
    return total(pairs) / weights if weights else None


def minimum(pairs):
    return min((x for _, x in pairs), default=None)


def maximum(pairs):
    return max((x for _, x in pairs), default=None)


def quantile(pairs, number, parts, weighted):
    """Without weights by linear interpolation; with them the smallest value at which the running
    weight reaches the share of the total, exactly."""
    values = sorted(pairs, key=lambda pair: pair[1])
    if not values:
        return None
    if not weighted:
        low, rest = divmod((len(values) - 1) * number, parts)
        high = min(low + 1, len(values) - 1)
        low, high = values[low][1], values[high][1]
        return low + rest / parts * (high - low)
    weights = [fractions.Fraction(w) for w, _ in values]
    needed, running = sum(weights) * number, 0
    for weight, (_, value) in zip(weights, values):
        running += weight
        if running * parts >= needed:
            return value
    return values[-1][1]


def median(pairs, weighted):
    return quantile(pairs, 1, 2, weighted)


def quantiles(pairs, parts, weighted):
    return [quantile(pairs, i, parts, weighted) for i in range(1, parts)]


def gini(pairs):
    values = sorted(pairs, key=lambda pair: pair[1])
    weights, amount = add(w for w, _ in values), total(values)
    if not weights or not amount:
        return None
    running, twice, squares = 0, [], []
    for weight, value in values:
        running += weight
        twice.append(2 * weight * value * running)
        squares.append(-weight * weight * value)
    return add(twice + squares) / (weights * amount) - 1


def variance(pairs):
    weights = add(w for w, _ in pairs)
    if weights <= 1:
        return None
    middle = mean(pairs)
    return add(w * (x - middle) ** 2 for w, x in pairs) / (weights - 1)


def stats(pairs, weighted):
    """Cases, sum, mean, median, minimum, maximum, standard deviation, variance, coefficient of
    variation in percent, standard error."""
    weights = add(w for w, _ in pairs)
    middle, spread = mean(pairs), variance(pairs)
    deviation = None if spread is None else math.sqrt(spread)
    share = None if deviation is None or not middle else 100 * deviation / middle
    fault = None if deviation is None else deviation / math.sqrt(weights)
    return [weights, total(pairs), middle, median(pairs, weighted), minimum(pairs), maximum(pairs),
            deviation, spread, share, fault]
