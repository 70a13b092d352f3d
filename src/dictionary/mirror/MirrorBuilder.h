// SPDX-License-Identifier: GPL-3.0-or-later
// Makes the interface's tree of entities and variables from an open dictionary.
#pragma once

#include <memory>

class TKelDictionary;
class TKelEntity;
class TKpEntity;

/// Fills mirror, and everything below it, from engineEntity. The root has level 1.
void buildEntity(TKelDictionary& dictionary, TKelEntity& engineEntity, TKpEntity& mirror,
                 int level);

/// The whole tree; null where the dictionary has no root.
std::shared_ptr<TKpEntity> buildMirror(TKelDictionary& dictionary);
