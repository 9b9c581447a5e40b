# SPDX-License-Identifier: MIT
"""The plan of the house: which room of src/ may include which. docs/architecture.md tells why."""

GROUND = {"platform", "model"}
BELOW_WORKSPACE = GROUND | {"metadata", "actions", "fileview"}
BELOW_ATTRIBUTES = BELOW_WORKSPACE | {"workspace", "documents"}

# Room -> the rooms whose headers it may include, besides its own.
KNOWS = {
    "platform": set(),
    "model": set(),
    "metadata": GROUND,
    "actions": GROUND,
    "fileview": GROUND,
    "workspace": BELOW_WORKSPACE,
    "documents": BELOW_WORKSPACE | {"workspace"},
    "attributes": BELOW_ATTRIBUTES,
    "app": BELOW_ATTRIBUTES | {"attributes"},
}

# All of it windows; every ui/ folder may use it, and it knows the ground.
WINDOWING = "windowing"
