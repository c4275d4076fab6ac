-- Names of the user fields of the inventory; a field without a name is not used.
insert into UserDef (cClass, cItem, cItemName) values
(N'存货', N'自定义项1', N'产地'),
(N'存货', N'自定义项2', N'保质期'),
(N'存货', N'自定义项3', N'安全等级'),
(N'存货', N'自定义项4', N'采购员'),
(N'存货', N'自定义项5', N'图号'),
(N'存货', N'自定义项6', NULL),
(N'存货', N'自定义项7', NULL),
(N'存货', N'自定义项8', NULL),
(N'存货', N'自定义项9', NULL),
(N'存货', N'自定义项10', NULL),
(N'存货', N'自定义项11', NULL),
(N'存货', N'自定义项12', NULL),
(N'存货', N'自定义项13', NULL),
(N'存货', N'自定义项14', NULL),
(N'存货', N'自定义项15', NULL),
(N'存货', N'自定义项16', NULL)
