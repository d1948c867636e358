-- Links between pages lead to HTML files. A page that moves to another folder gives the metadata `folder`, the old
-- one seen from the new one, such as "docs/". The first heading becomes the title.
local folder = ""

local function is_local(target)
  return not target:match("^%a+:") and not target:match("^#")
end

-- "docs/../samples/a" is "samples/a".
local function without_detours(path)
  local before
  repeat
    before = path
    path = path:gsub("[^/.]+/%.%./", "", 1)
  until path == before
  return path
end

local function moved(target)
  target = without_detours(folder .. target)
  -- The start page is README.html in the root; every other page keeps its place.
  target = target:gsub("^(.*)docs/README%.md", "%1README.md")
  return (target:gsub("%.md(#.*)$", ".html%1"):gsub("%.md$", ".html"))
end

local filter = {
  Link = function(link)
    if is_local(link.target) then
      link.target = moved(link.target)
    end
    return link
  end,
  Image = function(image)
    if is_local(image.src) then
      image.src = moved(image.src)
    end
    return image
  end,
}

function Pandoc(document)
  folder = document.meta.folder and pandoc.utils.stringify(document.meta.folder) or ""
  for _, block in ipairs(document.blocks) do
    if block.t == "Header" then
      document.meta.pagetitle = pandoc.utils.stringify(block.content)
      break
    end
  end
  return document:walk(filter)
end
