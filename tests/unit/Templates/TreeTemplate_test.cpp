#include "Templates/TreeTemplate.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <map>
#include <random>
#include <vector>

namespace {

struct Node {
  std::int64_t satKey = 0;
  std::int32_t balance = 0;
  Node* left = nullptr;
  Node* right = nullptr;
};

struct CountingPolicy {
  static inline int releasedLeaves = 0;
  static void linked(Node& /*node*/) {}
  static void release(Node* node) { releasedLeaves += node->left == node->right ? 1 : 0; }
};
using Tree = vcm::TreeTemplate<Node, CountingPolicy>;

// The height of a subtree whose keys lie between those of two nodes; -1 when its order, a balance
// or a height is wrong.
int checkedHeight(const Node* node, const Node* low = nullptr, const Node* high = nullptr) {
  if (node == nullptr) {
    return 0;
  }
  const int left = checkedHeight(node->left, low, node);
  const int right = checkedHeight(node->right, node, high);
  const bool ordered = (low == nullptr || low->satKey < node->satKey) &&
                       (high == nullptr || node->satKey < high->satKey);
  const bool level = node->balance == right - left && std::abs(node->balance) <= 1;
  return left < 0 || right < 0 || !ordered || !level ? -1 : 1 + std::max(left, right);
}

void changeAtRandom(int steps, std::uint64_t keys, int stepsBetweenChecks) {
  std::mt19937_64 random(keys);
  std::map<std::int64_t, Node> model;
  Node* root = nullptr;
  CountingPolicy::releasedLeaves = 0;
  for (int step = 1; step <= steps; ++step) {
    // Spread over all 64 bits, negative keys included.
    const auto key = static_cast<std::int64_t>(random() % keys * 0x9E3779B97F4A7C15U);
    const auto place = model.find(key);
    Node* const present = place == model.end() ? nullptr : &place->second;
    if (random() % 2 == 0) {
      Node twin{key};
      Node* const node = present != nullptr ? &twin : &model.emplace(key, Node{key}).first->second;
      ASSERT_EQ(Tree::add(root, node), present) << "step " << step;
      ASSERT_EQ(Tree::find(root, key), present != nullptr ? present : node) << "step " << step;
    } else {
      // The very node that was added comes out: nodes are relinked, their content stays put.
      ASSERT_EQ(Tree::remove(root, key), present) << "step " << step;
      ASSERT_EQ(Tree::find(root, key), nullptr) << "step " << step;
      model.erase(key);
    }
    if (step % stepsBetweenChecks == 0) {
      ASSERT_GE(checkedHeight(root), 0) << "step " << step;
      ASSERT_EQ(Tree::getTreeCount(root), static_cast<int>(model.size())) << "step " << step;
    }
  }
  std::vector<const Node*> up;
  std::vector<const Node*> down;
  Tree::walkUp(root, [&](const Node& node) { up.push_back(&node); });
  Tree::walkDown(root, [&](const Node& node) { down.push_back(&node); });
  EXPECT_TRUE(
      std::equal(up.begin(), up.end(), model.begin(), model.end(),
                 [](const Node* node, const auto& place) { return node == &place.second; }));
  EXPECT_TRUE(std::equal(up.begin(), up.end(), down.rbegin(), down.rend()));
  Tree::emptyTreeRecursive(root);
  EXPECT_EQ(root, nullptr);
  EXPECT_EQ(CountingPolicy::releasedLeaves, static_cast<int>(model.size()));
}

TEST(TreeTemplate, AgreesWithAMapUnderRandomChanges) { changeAtRandom(1'000'000, 50'000, 50'000); }
TEST(TreeTemplate, StaysBalancedAtEachRandomChange) { changeAtRandom(100'000, 50, 1); }

}  // namespace
