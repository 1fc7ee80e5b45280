// A height-balanced (AVL) search tree on a signed 64-bit key.
//
// The tree is intrusive: it links and unlinks nodes and never owns them, copies them or moves what
// they hold, so a pointer to a node stays good until that node is removed. It takes no locks.
//
// Node needs the members satKey, balance (-1 left side higher, 0, +1), left and right. RecordPolicy
// says what becomes of nodes:
//   static void linked(Node&)     called once when a node has found its place
//   static void release(Node*)    frees a node when the whole tree is emptied
#ifndef TEMPLATES_TREETEMPLATE_H
#define TEMPLATES_TREETEMPLATE_H

#include <cstdint>

namespace vcm {

template <class Node, class RecordPolicy>
class TreeTemplate {
 public:
  static Node* find(Node* node, std::int64_t key) {
    while (node != nullptr && node->satKey != key) {
      node = key < node->satKey ? node->left : node->right;
    }
    return node;
  }

  // Links a node, whose balance and links must be zero. Returns null, or the node that already has
  // the key: then nothing is linked.
  static Node* add(Node*& root, Node* node) {
    bool grew = false;
    return addNodeRecursive(root, node, grew);
  }

  // Unlinks the node with the key and returns it, null when there is none.
  static Node* remove(Node*& root, std::int64_t key) {
    bool shrank = false;
    return removeNodeRecursive(root, key, shrank);
  }

  // Releases every node, children before their parent. The root ends null.
  static void emptyTreeRecursive(Node*& root) {
    if (root == nullptr) {
      return;
    }
    emptyTreeRecursive(root->left);
    emptyTreeRecursive(root->right);
    RecordPolicy::release(root);
    root = nullptr;
  }

  static std::int32_t getTreeCount(const Node* node) {
    return node == nullptr ? 0 : 1 + getTreeCount(node->left) + getTreeCount(node->right);
  }

  // Calls visit(node) with keys ascending.
  template <class Visit>
  static void walkUp(const Node* node, Visit&& visit) {
    if (node != nullptr) {
      walkUp(node->left, visit);
      visit(*node);
      walkUp(node->right, visit);
    }
  }

  // Calls visit(node) with keys descending.
  template <class Visit>
  static void walkDown(const Node* node, Visit&& visit) {
    if (node != nullptr) {
      walkDown(node->right, visit);
      visit(*node);
      walkDown(node->left, visit);
    }
  }

 private:
  static Node* addNodeRecursive(Node*& link, Node* node, bool& grew) {
    if (link == nullptr) {
      link = node;
      grew = true;
      RecordPolicy::linked(*node);
      return nullptr;
    }
    if (node->satKey == link->satKey) {
      return link;
    }
    const bool toLeft = node->satKey < link->satKey;
    Node* const twin = addNodeRecursive(toLeft ? link->left : link->right, node, grew);
    if (grew) {
      // The side that grew decides: the height goes on growing only where both sides were level.
      link->balance += toLeft ? -1 : 1;
      if (link->balance == -2) {
        rotateRight(link);
      } else if (link->balance == 2) {
        rotateLeft(link);
      }
      grew = link->balance != 0;
    }
    return twin;
  }

  static Node* removeNodeRecursive(Node*& link, std::int64_t key, bool& shrank) {
    if (link == nullptr) {
      return nullptr;
    }
    if (key == link->satKey) {
      Node* const removed = link;
      unlink(link, shrank);
      return removed;
    }
    const bool fromLeft = key < link->satKey;
    Node* const removed = removeNodeRecursive(fromLeft ? link->left : link->right, key, shrank);
    if (shrank) {
      fromLeft ? balance_right_heavy(link, shrank) : balance_left_heavy(link, shrank);
    }
    return removed;
  }

  static void unlink(Node*& link, bool& shrank) {
    Node* const node = link;
    if (node->left == nullptr || node->right == nullptr) {
      link = node->left != nullptr ? node->left : node->right;
      shrank = true;
      return;
    }
    Node* const successor = swapNode(node->left, shrank);
    successor->left = node->left;
    successor->right = node->right;
    successor->balance = node->balance;
    link = successor;
    if (shrank) {
      balance_right_heavy(link, shrank);
    }
  }

  // Takes the node with the largest key out of a subtree: it takes the removed node's place.
  static Node* swapNode(Node*& link, bool& shrank) {
    if (link->right == nullptr) {
      Node* const extreme = link;
      link = extreme->left;
      shrank = true;
      return extreme;
    }
    Node* const extreme = swapNode(link->right, shrank);
    if (shrank) {
      balance_left_heavy(link, shrank);
    }
    return extreme;
  }

  // The left side shrank: the balance moves to the right. A node that was level keeps its height,
  // and so does one whose right child was level when it was rotated.
  static void balance_right_heavy(Node*& link, bool& shrank) {
    shrank = link->balance != 0;
    ++link->balance;
    if (link->balance == 2) {
      shrank = link->right->balance != 0;
      rotateLeft(link);
    }
  }

  static void balance_left_heavy(Node*& link, bool& shrank) {
    shrank = link->balance != 0;
    --link->balance;
    if (link->balance == -2) {
      shrank = link->left->balance != 0;
      rotateRight(link);
    }
  }

  // Restores a node of balance -2: single rotation, or double where the left child leans right.
  static void rotateRight(Node*& link) {
    Node* const node = link;
    Node* const child = node->left;
    if (child->balance <= 0) {
      node->left = child->right;
      child->right = node;
      // A level child happens only after a removal; then the pair stays unlevel.
      node->balance = child->balance == 0 ? -1 : 0;
      child->balance = child->balance == 0 ? 1 : 0;
      link = child;
    } else {
      Node* const top = child->right;
      child->right = top->left;
      node->left = top->right;
      splitBalance(top, child, node);
      link = top;
    }
  }

  static void rotateLeft(Node*& link) {
    Node* const node = link;
    Node* const child = node->right;
    if (child->balance >= 0) {
      node->right = child->left;
      child->left = node;
      node->balance = child->balance == 0 ? 1 : 0;
      child->balance = child->balance == 0 ? -1 : 0;
      link = child;
    } else {
      Node* const top = child->left;
      child->left = top->right;
      node->right = top->left;
      splitBalance(top, node, child);
      link = top;
    }
  }

  // Ends a double rotation: `top` gets its two children, which share out its former balance.
  static void splitBalance(Node* top, Node* left, Node* right) {
    left->balance = top->balance == 1 ? -1 : 0;
    right->balance = top->balance == -1 ? 1 : 0;
    top->balance = 0;
    top->left = left;
    top->right = right;
  }
};

}  // namespace vcm

#endif
