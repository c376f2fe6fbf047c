// Strings and templates of the library frame: about boxes, progress and preferences.
#include "resources/frame_ids.h"
#include "resources/ids.h"
#include "resources/resources.h"

namespace res {
namespace {

using K = Kind;
constexpr int kBar = -1;  // the bottom button bar

const StringEntry kStrings[] = {
    {1033, "Copyright (C) 2026 The Norvane developers. All rights reserved."},
    {1034, "Norvane: structural analysis and design of 3-D frames, shells and solids"},
    {1039, "OK"},
    {1040, "Cancel"},
    {1042, "About Norvane"},
    {kStrClose, "Close"},
    {kStrProgressCaption, "Sparse Matrix Factorization..."},
    {kStrPrivateLabelCaption, "About"},
};

const DialogTemplate kAbout = {
    100, 1042, "About Norvane",
    {
        {1007, K::Static, 1034, "Norvane", 0, 0},
        {1003, K::Static, 0, "", 1, 0},
        {1006, K::Static, 0, "", 2, 0},
        {1008, K::Static, 1033, "Copyright", 3, 0},
        {IDOK_, K::Button, 1039, "OK", kBar, 0, 1, 1, 0, kDefault},
    },
    420, 0};

const DialogTemplate kPrivateLabelAbout = {
    134, kStrPrivateLabelCaption, "About",
    {
        {1003, K::Static, 0, "", 0, 0},
        {1006, K::Static, 0, "", 1, 0},
        {IDOK_, K::Button, 1039, "OK", kBar, 0, 1, 1, 0, kDefault},
    },
    360, 0};

const DialogTemplate kProgress = {
    1545, kStrProgressCaption, "Sparse Matrix Factorization...",
    {
        {1325, K::Progress, 0, "", 0, 0, 1, 1, 0, kStretchCol},
    },
    360, 0};

const DialogTemplate* const kTemplates[] = {&kAbout, &kPrivateLabelAbout, &kProgress};

}  // namespace

extern const ResourceTable kFrameResources = {"frame", kStrings, kTemplates};

}  // namespace res
