#include "Templates/TreeTemplate.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <map>
#include <random>
#include <string>
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

using Keys = std::vector<std::int64_t>;

void changeAtRandom(int steps, const Keys& keys, int stepsBetweenChecks) {
  std::mt19937_64 random(keys.size());
  std::map<std::int64_t, Node> model;
  Node* root = nullptr;
  CountingPolicy::releasedLeaves = 0;
  for (int step = 1; step <= steps; ++step) {
    const std::int64_t key = keys[random() % keys.size()];
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

// The ends of 64 bits and what surrounds them, the others spread between them.
Keys spreadKeys(std::size_t count) {
  Keys keys{INT64_MIN, INT64_MIN + 1, -1, 0, 1, INT64_MAX - 1, INT64_MAX};
  for (std::uint64_t i = 1; keys.size() < count; ++i) {
    keys.push_back(static_cast<std::int64_t>(i * 0x9E3779B97F4A7C15U));
  }
  return keys;
}

TEST(TreeTemplate, AgreesWithAMapUnderRandomChanges) {
  changeAtRandom(1'000'000, spreadKeys(50'000), 50'000);
}
TEST(TreeTemplate, StaysBalancedAtEachOfAMillionRandomChanges) {
  changeAtRandom(1'000'000, spreadKeys(40), 1);
}

// Keys of one digit from the root down: no two trees have the same.
std::string shapeOf(const Node* node) {
  return node == nullptr
             ? ""
             : std::to_string(node->satKey) + shapeOf(node->left) + shapeOf(node->right);
}

// A tree made by adding keys in this order, checked at each step.
struct Grown {
  std::array<Node, 7> nodes{};
  Node* root = nullptr;
  explicit Grown(const Keys& order) {
    for (std::size_t i = 0; i < order.size(); ++i) {
      nodes[i].satKey = order[i];
      EXPECT_EQ(Tree::add(root, &nodes[i]), nullptr);
      EXPECT_TRUE(checkedHeight(root) > 0 && Tree::getTreeCount(root) == static_cast<int>(i) + 1)
          << shapeOf(root);
    }
  }
};

// What adding makes is told by its shape: every order of removing is tried on one tree of each.
TEST(TreeTemplate, EveryOrderOfAddingAndOfRemovingSevenKeys) {
  Keys keys;
  const std::size_t shapes[] = {1, 2, 1, 4, 6, 4, 17};  // of level trees with one to seven keys
  for (const std::size_t expected : shapes) {
    keys.push_back(static_cast<std::int64_t>(keys.size()));
    std::map<std::string, Keys> orders;
    Keys order = keys;
    do {
      orders.emplace(shapeOf(Grown(order).root), order);
    } while (std::next_permutation(order.begin(), order.end()));
    EXPECT_EQ(orders.size(), expected);
    for (const auto& [shape, adding] : orders) {
      Keys removing = keys;
      do {
        Grown tree(adding);
        auto left = static_cast<int>(keys.size());
        for (const std::int64_t key : removing) {
          const Node* const removed = Tree::remove(tree.root, key);
          ASSERT_TRUE(removed != nullptr && removed->satKey == key &&
                      checkedHeight(tree.root) >= 0 && Tree::getTreeCount(tree.root) == --left)
              << shape << " without " << testing::PrintToString(removing) << " up to " << key;
        }
      } while (std::next_permutation(removing.begin(), removing.end()));
    }
  }
}

}  // namespace
