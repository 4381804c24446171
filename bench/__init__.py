"""Benchmarks: the launcher against floors, the least that each of its jobs can cost."""
