// Nothing to include.
