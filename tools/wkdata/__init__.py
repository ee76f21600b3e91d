"""Builds Wanderkit's shipped data files (the device root) from named public sources."""
