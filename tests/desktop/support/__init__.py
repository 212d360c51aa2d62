"""A real desktop for the tests: private servers, real programs, and Norvin Focus as a user meets it."""
