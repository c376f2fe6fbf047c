#pragma once
#include <Eigen/Sparse>
#include <functional>
#include <string>
#include <vector>

#include "analysis/frame_member.h"
#include "analysis/model.h"

// The global stiffness of a model over all six degrees of freedom of every node (upper
// triangle), the numbering of the free equations, and the load vectors of the load cases.
namespace analysis {

using SparseMatrix = Eigen::SparseMatrix<double, Eigen::ColMajor, int>;

// Global degree of freedom 6 * node + dof.
inline size_t GlobalDof(size_t node, int dof) { return 6 * node + static_cast<size_t>(dof); }

struct DofNumbering {
  std::vector<int> equation;  // per global degree of freedom: free equation number, or -1
  std::vector<size_t> freeDofs;  // per equation: its global degree of freedom
  std::vector<size_t> autoHeld;  // global degrees of freedom no element stiffens
};

// Which members take part (tension-only and compression-only members drop out while slack).
using MemberActivity = std::vector<char>;

// Constraints and diaphragms are imposed exactly: each tie makes one degree of freedom (its
// slave) a fixed combination of others, u = T q, and the equations are those of Tᵀ K T.
// Degrees of freedom that are not slaves keep their own column of T (one), slaves none.
struct GlobalStiffness {
  SparseMatrix full;  // elements and springs, upper triangle, 6 × nodes square
  DofNumbering numbering;
  SparseMatrix free;  // upper triangle of the free equations of Tᵀ K T
  SparseMatrix ties;  // T, 6 × nodes square; empty when the model ties nothing (T = I)
  // Per constraint of the model, the global degree of freedom at which its force is read
  // (one that no other tie or support acts on) and the end it belongs to; -1 when there is none.
  struct ForceAt {
    long dof = -1;
    int end = 0;
  };
  std::vector<ForceAt> constraintForceAt;

  // u = T q for every column.
  Eigen::MatrixXd Expand(const Eigen::MatrixXd& q) const;
  // Tᵀ v: forces on the degrees of freedom that are not slaves, each slave's added to those it follows.
  Eigen::MatrixXd Gather(const Eigen::MatrixXd& v) const;
};

// Assembles every element and spring and ties the constraints and diaphragms; supports are
// held and the degrees of freedom that nothing stiffens are held automatically (in autoHeld).
GlobalStiffness AssembleStiffness(const Model& model, const MemberActivity& active);

// The applied load vector of a load case over all degrees of freedom: nodal loads and the
// equivalent nodal loads of element loads and self weight.
Eigen::VectorXd CaseLoadVector(const Model& model, size_t caseIndex);

// A member's loads of one case in its local axes (self weight included).
LocalMemberLoads MemberLoadsOfCase(const Model& model, size_t member, size_t caseIndex);
// A combination's loads on one member: the factored loads of its cases.
LocalMemberLoads MemberLoadsOfTerms(const Model& model, size_t member,
                                    const std::vector<std::pair<size_t, double>>& terms);

// What a rigid link stands on: a million times the stiffest member's rigidities.
Rigidities RigidLinkRigidities(const Model& model);
// The member's matrices in local axes; a rigid link takes `rigidLink`.
LocalMember MemberMatrices(const Model& model, size_t member, const LocalMemberLoads& loads,
                           const Rigidities& rigidLink);

// Tᵀ A T of a symmetric matrix over all degrees of freedom given by its upper triangle, and
// that matrix's block of free equations (upper triangle).
SparseMatrix Condense(const SparseMatrix& upper, const SparseMatrix& ties);
SparseMatrix FreeBlock(const SparseMatrix& upper, const DofNumbering& numbering);

// Masses lumped at the nodes: self weight over g and the additional masses (per global DOF).
Eigen::VectorXd LumpedMasses(const Model& model);
// The mass matrix over all degrees of freedom (upper triangle): the elements' self weight over
// g, lumped (a diagonal) or consistent, and the additional masses on the diagonal either way.
// Rigid links carry no mass.
SparseMatrix MassMatrix(const Model& model, MassModel masses);

// "Node 12, Rz" for messages.
std::string DofLabel(const Model& model, size_t globalDof);

}  // namespace analysis
