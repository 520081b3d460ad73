-- Orders of the last quarter, by customer and region.
-- A sample for the Textzone demo: open it, edit it, save it.

SELECT c.customer_id,
       c.name,
       r.region_name,
       COUNT(o.order_id)      AS orders,
       SUM(o.total_amount)    AS revenue,
       MAX(o.order_date)      AS last_order
FROM   customers c
       JOIN regions r ON r.region_id = c.region_id
       LEFT JOIN orders o
              ON o.customer_id = c.customer_id
             AND o.order_date >= DATEADD(month, -3, GETDATE())
WHERE  c.active = 1
GROUP  BY c.customer_id, c.name, r.region_name
HAVING SUM(o.total_amount) > 1000
ORDER  BY revenue DESC;

/* Top products per region */
WITH ranked AS (
    SELECT r.region_name,
           p.product_name,
           SUM(l.quantity) AS units,
           ROW_NUMBER() OVER (PARTITION BY r.region_name
                              ORDER BY SUM(l.quantity) DESC) AS rn
    FROM   order_lines l
           JOIN orders o    ON o.order_id = l.order_id
           JOIN products p  ON p.product_id = l.product_id
           JOIN customers c ON c.customer_id = o.customer_id
           JOIN regions r   ON r.region_id = c.region_id
    GROUP  BY r.region_name, p.product_name
)
SELECT region_name, product_name, units
FROM   ranked
WHERE  rn <= 3;
