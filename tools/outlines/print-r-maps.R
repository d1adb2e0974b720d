# Prints two maps of R, ring by ring: "lake NAME" or "province NAME", then "longitude latitude"
# lines in degrees (east and north positive), all digits that tell doubles apart.
suppressMessages({ library(maps); library(sp); library(rnaturalearthdata) })

print_ring <- function(kind, name, x, y)
  cat(sprintf("%s %s\n", kind, name), sprintf("%.10f %.10f\n", x, y), sep = "")

lakes <- map("lakes", plot = FALSE, fill = TRUE)
ring <- cumsum(is.na(lakes$x)) + 1
for (i in seq_along(lakes$names)) {
  points <- which(ring == i & !is.na(lakes$x))
  print_ring("lake", lakes$names[i], lakes$x[points], lakes$y[points])
}

canada <- states50[states50$admin == "Canada", ]
for (i in seq_along(canada@polygons))
  for (polygon in canada@polygons[[i]]@Polygons)
    print_ring("province", canada$name[i], polygon@coords[, 1], polygon@coords[, 2])
