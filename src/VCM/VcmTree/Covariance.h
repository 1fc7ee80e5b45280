// The covariance between its two element orders and its two shapes. The order changes nowhere else.
#ifndef VCM_VCMTREE_COVARIANCE_H
#define VCM_VCMTREE_COVARIANCE_H

#include "VCM/VcmTypes/VcmRecord.h"

namespace vcm {

// Reorders a full matrix from the record's element order to the messages' order, and back.
CovarianceMatrix MapMtxInt2Ext(const CovarianceMatrix& internal);
CovarianceMatrix MapMtxExt2Int(const CovarianceMatrix& external);

// Between a record's matrix and the values of a message.
CovarianceTriangle Vcm2dTo1d(const CovarianceMatrix& internal);
CovarianceMatrix Vcm1dTo2d(const CovarianceTriangle& external);

}  // namespace vcm

#endif
