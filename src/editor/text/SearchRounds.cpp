// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/text/SearchRounds.h"

bool SearchRounds::takes(const QString& query, int cursor, Match match) {
    const auto known = rounds_.constFind(query);
    if (known == rounds_.constEnd()) {
        rounds_.insert(query, {cursor, match, false});
        return true;
    }
    const Match first = known->first;
    // What was put in its place may hold matches of its own, or make one with its neighbours.
    const bool cameRound = known->replaced ? match.start < first.end && match.end > first.start
                                           : match.end == first.end;
    return !cameRound;
}

void SearchRounds::follow(int position, int removed, int added) {
    const int oldEnd = position + removed;
    const auto moved = [=](int place, int inside) {
        if (place <= position)
            return place;
        return place >= oldEnd ? place + added - removed : inside;
    };
    for (Round& round : rounds_) {
        round.replaced |= round.first.start < oldEnd && round.first.end > position;
        round.begin = moved(round.begin, position + added);
        round.first = {moved(round.first.start, position),
                       moved(round.first.end, position + added)};
    }
}
