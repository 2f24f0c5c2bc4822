-- A trading house for tea, coffee, spices and kitchenware.
-- One text for SQLite, PostgreSQL and MariaDB (with sql_mode ANSI_QUOTES and
-- NO_BACKSLASH_ESCAPES): only what all three read in the same way stands here.
-- Every name is quoted, tables come after the tables that they refer to.

create table "settings" (
    "name" varchar(40) not null,
    "value" varchar(200),
    "changed_at" timestamp not null,
    primary key ("name")
);

create table "Währungen" (
    "Kürzel" varchar(3) not null,
    "Bezeichnung" varchar(60) not null,
    "Zeichen" varchar(4),
    "Kurs" decimal(12,6) not null,
    "gültig ab" date not null,
    primary key ("Kürzel")
);

create table "countries" (
    "country_code" varchar(2) not null,
    "name" varchar(60) not null,
    "local_name" varchar(60) not null,
    "currency" varchar(3) not null,
    "eu_member" boolean not null,
    "population" bigint not null,
    "phone_prefix" varchar(8),
    primary key ("country_code"),
    constraint "fk_countries_currency" foreign key ("currency") references "Währungen" ("Kürzel")
);

create table "cities" (
    "city_id" integer not null,
    "country_code" varchar(2) not null,
    "name" varchar(60) not null,
    "local_name" varchar(60),
    "population" integer,
    "latitude" double precision,
    "longitude" double precision,
    primary key ("city_id"),
    constraint "fk_cities_country" foreign key ("country_code") references "countries" ("country_code")
);

create table "addresses" (
    "address_id" integer not null,
    "city_id" integer not null,
    "street" varchar(80) not null,
    "house_no" varchar(12),
    "postal_code" varchar(12),
    "addition" varchar(60),
    primary key ("address_id"),
    constraint "fk_addresses_city" foreign key ("city_id") references "cities" ("city_id")
);

create table "employees" (
    "employee_id" integer not null,
    "last_name" varchar(40) not null,
    "first_name" varchar(40) not null,
    "job_title" varchar(60) not null,
    "manager_id" integer,
    "address_id" integer,
    "born_on" date,
    "hired_on" date not null,
    "left_on" date,
    "shift_start" time,
    "salary" decimal(10,2),
    "full_time" boolean not null,
    "e_mail" varchar(80),
    "notes" text,
    primary key ("employee_id"),
    constraint "uq_employees_e_mail" unique ("e_mail"),
    constraint "fk_employees_manager" foreign key ("manager_id") references "employees" ("employee_id"),
    constraint "fk_employees_address" foreign key ("address_id") references "addresses" ("address_id")
);

create table "sales_areas" (
    "employee_id" integer not null,
    "country_code" varchar(2) not null,
    "since" date not null,
    primary key ("employee_id", "country_code"),
    constraint "fk_sales_areas_employee" foreign key ("employee_id") references "employees" ("employee_id"),
    constraint "fk_sales_areas_country" foreign key ("country_code") references "countries" ("country_code")
);

create table "categories" (
    "category_id" smallint not null,
    "name" varchar(40) not null,
    "description" varchar(400),
    "tax_percent" decimal(5,2) not null,
    primary key ("category_id")
);

create table "suppliers" (
    "supplier_id" integer not null,
    "name" varchar(80) not null,
    "contact" varchar(60),
    "address_id" integer not null,
    "phone" varchar(30),
    "homepage" varchar(120),
    "rating" smallint,
    "preferred" boolean,
    primary key ("supplier_id"),
    constraint "fk_suppliers_address" foreign key ("address_id") references "addresses" ("address_id")
);

create table "products" (
    "product_id" integer not null,
    "category_id" smallint not null,
    "supplier_id" integer,
    "name" varchar(80) not null,
    "название" varchar(80),
    "Größe" varchar(20),
    "list price" decimal(10,2) not null,
    "cost" decimal(10,2),
    "weight_kg" decimal(8,3),
    "barcode" bigint,
    "in_stock" integer not null,
    "discontinued" boolean not null,
    "introduced_on" date not null,
    "description" varchar(2000),
    primary key ("product_id"),
    constraint "uq_products_barcode" unique ("barcode"),
    constraint "fk_products_category" foreign key ("category_id") references "categories" ("category_id"),
    constraint "fk_products_supplier" foreign key ("supplier_id") references "suppliers" ("supplier_id")
);

create table "price_history" (
    "product_id" integer not null,
    "from" date not null,
    "price" decimal(10,2) not null,
    primary key ("product_id", "from"),
    constraint "fk_price_history_product" foreign key ("product_id") references "products" ("product_id")
);

create table "customers" (
    "customer_id" integer not null,
    "name" varchar(80) not null,
    "contact" varchar(60),
    "company" boolean not null,
    "language" varchar(2) not null,
    "address_id" integer,
    "account_manager_id" integer,
    "e_mail" varchar(80),
    "phone" varchar(30),
    "customer_since" date not null,
    "credit_limit" decimal(12,2),
    "newsletter" boolean,
    "remark" text,
    primary key ("customer_id"),
    constraint "fk_customers_address" foreign key ("address_id") references "addresses" ("address_id"),
    constraint "fk_customers_account_manager" foreign key ("account_manager_id") references "employees" ("employee_id")
);

create table "shippers" (
    "shipper_id" smallint not null,
    "name" varchar(60) not null,
    "phone" varchar(30),
    "cutoff_time" time,
    "express" boolean not null,
    primary key ("shipper_id")
);

create table "orders" (
    "order_id" integer not null,
    "order_year" smallint not null,
    "number_in_year" integer not null,
    "customer_id" integer not null,
    "sold_by" integer,
    "packed_by" integer,
    "bill_address_id" integer not null,
    "ship_address_id" integer,
    "currency" varchar(3) not null,
    "ordered_at" timestamp not null,
    "required_on" date,
    "freight" decimal(10,2) not null,
    "paid" boolean not null,
    "cancelled" boolean not null,
    "customer_reference" varchar(40),
    "remark" varchar(400),
    primary key ("order_id"),
    constraint "uq_orders_number" unique ("order_year", "number_in_year"),
    constraint "fk_orders_customer" foreign key ("customer_id") references "customers" ("customer_id"),
    constraint "fk_orders_sold_by" foreign key ("sold_by") references "employees" ("employee_id"),
    constraint "fk_orders_packed_by" foreign key ("packed_by") references "employees" ("employee_id"),
    constraint "fk_orders_bill_address" foreign key ("bill_address_id") references "addresses" ("address_id"),
    constraint "fk_orders_ship_address" foreign key ("ship_address_id") references "addresses" ("address_id"),
    constraint "fk_orders_currency" foreign key ("currency") references "Währungen" ("Kürzel")
);

create table "order_lines" (
    "order_id" integer not null,
    "line_no" smallint not null,
    "product_id" integer not null,
    "quantity" integer not null,
    "unit_price" decimal(10,2) not null,
    "discount_percent" decimal(5,2) not null,
    "note" varchar(200),
    primary key ("order_id", "line_no"),
    constraint "ck_order_lines_quantity" check ("quantity" > 0),
    constraint "fk_order_lines_order" foreign key ("order_id") references "orders" ("order_id"),
    constraint "fk_order_lines_product" foreign key ("product_id") references "products" ("product_id")
);

create table "shipments" (
    "shipment_id" integer not null,
    "order_id" integer not null,
    "shipper_id" smallint,
    "shipped_at" timestamp not null,
    "pickup_time" time,
    "arrived_on" date,
    "tracking_no" bigint,
    "weight_kg" decimal(8,3),
    "insured" boolean,
    primary key ("shipment_id"),
    constraint "fk_shipments_order" foreign key ("order_id") references "orders" ("order_id"),
    constraint "fk_shipments_shipper" foreign key ("shipper_id") references "shippers" ("shipper_id")
);

create table "shipment_lines" (
    "shipment_id" integer not null,
    "order_id" integer not null,
    "line_no" smallint not null,
    "quantity" integer not null,
    primary key ("shipment_id", "order_id", "line_no"),
    constraint "fk_shipment_lines_shipment" foreign key ("shipment_id") references "shipments" ("shipment_id"),
    constraint "fk_shipment_lines_order_line" foreign key ("order_id", "line_no") references "order_lines" ("order_id", "line_no")
);

create table "payments" (
    "payment_id" bigint not null,
    "order_id" integer not null,
    "paid_at" timestamp not null,
    "amount" decimal(10,2) not null,
    "method" varchar(20) not null,
    "confirmed" boolean,
    "reference" varchar(60),
    primary key ("payment_id"),
    constraint "fk_payments_order" foreign key ("order_id") references "orders" ("order_id")
);

create table "returns" (
    "return_id" integer not null,
    "order_id" integer not null,
    "line_no" smallint,
    "returned_on" date not null,
    "quantity" integer not null,
    "reason" varchar(200),
    "handled_by" integer,
    "refund" decimal(10,2),
    primary key ("return_id"),
    constraint "fk_returns_order" foreign key ("order_id") references "orders" ("order_id"),
    constraint "fk_returns_order_line" foreign key ("order_id", "line_no") references "order_lines" ("order_id", "line_no"),
    constraint "fk_returns_handled_by" foreign key ("handled_by") references "employees" ("employee_id")
);
