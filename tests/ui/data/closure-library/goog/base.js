// A stand-in for the JavaScript library's entry file, for tests.
var goog = goog || {};
goog.provide = function(name) { return name; };
